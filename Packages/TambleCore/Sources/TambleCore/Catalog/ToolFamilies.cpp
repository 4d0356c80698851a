#include <TambleCore/Catalog/ToolFamilies.h>
#include <TambleCore/Images/ImageTools.h>

#include <iterator>

namespace tamble {

std::vector<ToolDefinition> toolDefinitions() {
    std::vector<ToolDefinition> definitions;
    for (auto* family : {&imageTools}) {
        std::ranges::move(family(), std::back_inserter(definitions));
    }
    return definitions;
}

}  // namespace tamble
