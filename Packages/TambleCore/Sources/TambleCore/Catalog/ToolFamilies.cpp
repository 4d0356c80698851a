#include <TambleCore/Catalog/ToolFamilies.h>
#include <TambleCore/Images/ImageTools.h>
#include <TambleCore/PDF/PDFTools.h>
#include <TambleCore/Rename/RenameTools.h>

#include <iterator>

namespace tamble {

std::vector<ToolDefinition> toolDefinitions() {
    std::vector<ToolDefinition> definitions;
    for (auto* family : {&imageTools, &pdfTools, &renameTools}) {
        std::ranges::move(family(), std::back_inserter(definitions));
    }
    return definitions;
}

}  // namespace tamble
