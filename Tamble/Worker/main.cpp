#include <Tamble/Worker/Worker.h>

#include <TambleCore/Catalog/ToolCatalog.h>
#include <TambleCore/Previews/PreviewTools.h>

int main(int count, char** arguments) {
    const auto toolWithID = [](std::string_view id) {
        const auto* tool = tamble::ToolCatalog::definition(id);
        return tool != nullptr ? tool : tamble::previewTool(id);
    };
    return tamble::runWorker({arguments, static_cast<std::size_t>(count)}, toolWithID);
}
