#include <TambleCore/Catalog/ToolFamilies.h>
#include <TambleCore/Images/ImageTools.h>
#include <TambleCore/PDF/PDFTools.h>

#include <iterator>

namespace tamble {

std::vector<ToolDefinition> toolDefinitions() {
    std::vector<ToolDefinition> definitions;
    for (auto* family : {&imageTools, &pdfTools}) {
        std::ranges::move(family(), std::back_inserter(definitions));
    }
    return definitions;
}

}  // namespace tamble
