#include <Tamble/Model/FittingTools.h>

#include <TambleCore/Catalog/Suggestions.h>

#include <algorithm>

namespace tamble {
namespace {

int acceptedFiles(const ToolDefinition& tool, std::span<const TypeCount> types) {
    int files = 0;
    for (const TypeCount& each : types) files += tool.accepts(each.type) ? each.files : 0;
    return files;
}

}  // namespace

std::vector<ToolFit> fittingTools(std::span<const InputFile> files) {
    const std::vector<TypeCount> types = typeCounts(files);
    std::vector<ToolFit> fits;
    const auto add = [&](std::string_view id) {
        const ToolInfo* tool = ToolCatalog::withID(id);
        const ToolDefinition* definition = ToolCatalog::definition(id);
        const bool isKnown = std::ranges::find(fits, tool, &ToolFit::tool) != fits.end();
        if (tool == nullptr || definition == nullptr || isKnown) return;
        if (const int count = acceptedFiles(*definition, types); count > 0) fits.push_back({tool, count});
    };
    for (const ToolInfo& tool : suggestedTools(KindCounts::of(types))) add(tool.id);
    for (const ToolInfo& tool : ToolCatalog::all()) add(tool.id);
    return fits;
}

}  // namespace tamble
