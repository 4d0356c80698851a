#include <Tamble/CommandLine/Arguments/CommandTable.h>
#include <Tamble/CommandLine/Completion/Completion.h>

#include <TambleCore/Catalog/ToolCatalog.h>

namespace tamble {

std::vector<CommandDescription> completedCommands() {
    std::vector<CommandDescription> all;
    for (const ToolInfo& tool : ToolCatalog::all()) {
        if (const auto* definition = ToolCatalog::definition(tool.id))
            all.push_back(toolCommand(*definition));
    }
    std::vector<std::string> tools;
    for (const auto& tool : all) tools.push_back(tool.name);
    all.insert(all.end(), commands().begin(), commands().end());
    std::ranges::find(all, "estimate", &CommandDescription::name)->operandWords = std::move(tools);
    return all;
}

std::vector<std::string> optionSpellings(const CommandOption& option) {
    std::vector<std::string> spellings{"--" + option.name};
    if (option.isSwitch) spellings.push_back("--no-" + option.name);
    if (option.letter != '\0') spellings.push_back(std::string{'-', option.letter});
    return spellings;
}

std::string shellQuoted(std::string_view text) {
    std::string quoted = "'";
    for (const char c : text) quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return quoted + "'";
}

}  // namespace tamble
