#include <Tamble/Model/PopularTools.h>

#include <algorithm>
#include <array>
#include <functional>

namespace tamble {
namespace {

constexpr std::array<std::string_view, 6> wellChosen{"image.convert", "image.compress", "pdf.merge",
                                                     "pdf.compress",  "pdf.sign",       "files.rename"};

}  // namespace

std::vector<const ToolInfo*> popularTools(std::span<const ToolUse> uses,
                                          std::chrono::system_clock::time_point now, std::size_t most) {
    std::vector<ToolUse> used(uses.begin(), uses.end());
    const auto countNow = [now](const ToolUse& use) { return use.countAt(now); };
    std::erase_if(used, [&](const ToolUse& use) { return countNow(use) < 0.01; });
    std::ranges::stable_sort(used, std::ranges::greater(), countNow);
    std::vector<const ToolInfo*> tools;
    const auto add = [&](std::string_view id) {
        const ToolInfo* tool = ToolCatalog::withID(id);
        const bool isNew = std::ranges::find(tools, tool) == tools.end();
        const bool runs = tool != nullptr && ToolCatalog::definition(id) != nullptr;
        if (runs && isNew && tools.size() < most) tools.push_back(tool);
    };
    for (const ToolUse& use : used) add(use.toolID);
    for (const auto id : wellChosen) add(id);
    return tools;
}

}  // namespace tamble
