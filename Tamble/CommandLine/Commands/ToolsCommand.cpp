#include <Tamble/CommandLine/Arguments/CommandTable.h>
#include <Tamble/CommandLine/Arguments/UsageError.h>
#include <Tamble/CommandLine/Commands/Commands.h>
#include <Tamble/CommandLine/Help/HelpPage.h>

#include <TambleCore/Support/Json/JsonCoding.h>
#include <TambleCore/Support/Text.h>
#include <TambleCore/Support/Wording.h>

#include <algorithm>
#include <functional>

#include <fmt/format.h>

namespace tamble {
namespace {

Json toolJson(const ToolInfo& tool) {
    const std::string reason = ToolCatalog::unavailableReason(tool.id);
    Json json = Json::object();
    json["id"] = tool.id;
    json["category"] = encodeJson(tool.category);
    json["title"] = localized(tool.title);
    json["subtitle"] = localized(tool.subtitle);
    json["symbol"] = std::string(tool.symbol);
    json["isAvailable"] = reason.empty();
    if (!reason.empty()) json["unavailableReason"] = localized(reason);
    return json;
}

HelpEntry toolEntry(const ToolInfo& tool) {
    return {tool.id, fmt::format("{}: {}", localized(tool.title), localized(tool.subtitle))};
}

/// Why tools of one family cannot run: said once when it is the same for all of them.
void tellReasons(HelpSection& section, std::span<const std::string> reasons) {
    if (std::ranges::adjacent_find(reasons, std::not_equal_to()) == reasons.end()) {
        section.text = reasons.front();
        return;
    }
    for (std::size_t i = 0; i < reasons.size(); ++i) {
        if (!reasons[i].empty()) section.entries[i].text += fmt::format("\n({})", reasons[i]);
    }
}

HelpPage toolsPage() {
    HelpPage page{.summary = "All tools, family by family. “tamble TOOL --help” tells what a tool can do."};
    std::vector<std::vector<std::string>> reasons;
    for (const ToolInfo& tool : ToolCatalog::all()) {
        const std::string_view family = title(tool.category);
        if (page.sections.empty() || page.sections.back().heading != family) {
            page.sections.push_back({.heading = std::string(family)});
            reasons.emplace_back();
        }
        page.sections.back().entries.push_back(toolEntry(tool));
        reasons.back().push_back(localized(ToolCatalog::unavailableReason(tool.id)));
    }
    for (std::size_t i = 0; i < page.sections.size(); ++i) tellReasons(page.sections[i], reasons[i]);
    return page;
}

/// The tools whose name without the family is the word, as "convert" is of "image.convert".
std::vector<std::string> toolsNamed(std::string_view word) {
    std::vector<std::string> ids;
    for (const ToolInfo& tool : ToolCatalog::all()) {
        if (std::string_view(tool.id).substr(tool.id.find('.') + 1) == word) ids.push_back(tool.id);
    }
    return ids;
}

std::string unknownTool(std::string_view word) {
    std::vector<std::string> meant = toolsNamed(word);
    if (meant.empty()) {
        std::vector<std::string> known;
        for (const ToolInfo& tool : ToolCatalog::all()) known.push_back(tool.id);
        for (const auto& command : commands()) known.push_back(command.name);
        if (auto nearest = nearestWord(word, known); !nearest.empty()) meant.push_back(std::move(nearest));
    }
    std::string hint = " “tamble tools” lists what there is.";
    if (!meant.empty()) hint = fmt::format(" Did you mean {}?", fmt::join(meant, " or "));
    return fmt::format("There is no tool or command “{}”.{}", word, hint);
}

}  // namespace

ExitStatus listTools(const ParsedArguments& arguments) {
    if (!arguments.has("json")) {
        printOutput(rendered(toolsPage(), Terminal::output()));
        return ExitStatus::allDone;
    }
    Json list = Json::array();
    for (const ToolInfo& tool : ToolCatalog::all()) list.push_back(toolJson(tool));
    printOutput(writeIndentedJson(list) + '\n');
    return ExitStatus::allDone;
}

const ToolDefinition& requiredTool(std::string_view id) {
    if (const ToolDefinition* tool = ToolCatalog::definition(id)) return *tool;
    if (ToolCatalog::withID(id) == nullptr) throw UsageError(unknownTool(id));
    throw UsageError(fmt::format("{} can't run: {}", id, localized(ToolCatalog::unavailableReason(id))));
}

}  // namespace tamble
