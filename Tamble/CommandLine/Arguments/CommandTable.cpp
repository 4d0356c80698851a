#include <Tamble/CommandLine/Arguments/CommandTable.h>
#include <Tamble/CommandLine/Arguments/PasswordArguments.h>
#include <Tamble/CommandLine/Arguments/SettingsArguments.h>

#include <TambleCore/Catalog/ToolCatalog.h>
#include <TambleCore/Rename/RenamePanel.h>
#include <TambleCore/Support/Wording.h>

#include <algorithm>
#include <iterator>

#include <fmt/format.h>

namespace tamble {
namespace {

CommandOption jsonOption() {
    return {.name = "json", .help = "Print one JSON document on standard output"};
}

CommandOption helpOption() {
    return {.name = "help", .letter = 'h', .help = "Show this help"};
}

CommandOption subfoldersOption() {
    return {.name = "no-subfolders", .help = "Take only the files directly in the named folders"};
}

CommandOption listedOption() {
    return {
        .name = "null", .letter = '0', .help = "Read more paths from standard input, each ended by a NUL"};
}

std::string wayHelp(RenameWay way, std::string_view more) {
    const RenameWayText text = textOf(way);
    return fmt::format("{}: {}{}", localized(text.label), localized(text.description), more);
}

std::vector<CommandDescription> buildCommands() {
    const std::string paths = "PATH…";
    return {
        {.name = "tools",
         .summary = "List all tools, also those that can't run here yet",
         .options = {jsonOption(), helpOption()}},
        {.name = "scan",
         .operands = paths,
         .summary = "Look through files and folders: what is in them, and which tools fit",
         .options = {subfoldersOption(), listedOption(), jsonOption(), helpOption()},
         .operandCompletes = Completes::files},
        {.name = "estimate",
         .operands = "TOOL PATH…",
         .summary = "Tell how big the new files of a tool would be, without making them",
         .options = {subfoldersOption(), listedOption(), jsonOption(), helpOption()},
         .operandCompletes = Completes::files},
        {.name = "activity",
         .summary = "List finished jobs, the newest first",
         .options = {{.name = "clear", .help = "Forget all jobs; files stay as they are"},
                     jsonOption(),
                     helpOption()}},
        {.name = "undo",
         .operands = "[ID]",
         .summary = "Remove the new files of a job and put the originals or old names back; the newest job "
                    "without an "
                    "ID",
         .options = {jsonOption(), helpOption()}},
        {.name = "completion",
         .operands = "SHELL",
         .summary = "Print the completion script for bash, zsh or fish",
         .options = {helpOption()},
         .operandWords = {"bash", "zsh", "fish"}},
        {.name = "man", .summary = "Print the manual page, for man -l -", .options = {helpOption()}},
    };
}

}  // namespace

std::span<const CommandDescription> commands() {
    static const std::vector<CommandDescription> all = buildCommands();
    return all;
}

const CommandDescription* commandNamed(std::string_view name) {
    const auto found = std::ranges::find(commands(), name, &CommandDescription::name);
    return found == commands().end() ? nullptr : &*found;
}

std::span<const CommandOption> savingOptions() {
    static const std::vector<CommandOption> options{
        {.name = "save",
         .value = "next|replace|DIR",
         .help = "Save next to each original (default), in its place (the original goes to the Bin), or into "
                 "a folder",
         .words = {"next", "replace"},
         .completes = Completes::folders},
        {.name = "keep-structure", .help = "In a folder, keep the structure of the folders that were named"},
        {.name = "date-folder", .help = "In a folder, save into a folder named by today's date"},
        {.name = "clash",
         .value = "addNumber|skip|replace",
         .help = "When a name is taken: give the new file a number (default), skip it, or send the existing "
                 "file to "
                 "the Bin",
         .words = {"addNumber", "skip", "replace"}},
    };
    return options;
}

std::span<const CommandOption> runningOptions() {
    static const std::vector<CommandOption> options{
        {.name = "jobs", .letter = 'j', .value = "NUMBER", .help = "Work on so many files at the same time"},
        subfoldersOption(),
        listedOption(),
        {.name = "dry-run", .letter = 'n', .help = "Show where each new file would go, and touch nothing"},
        jsonOption(),
        helpOption(),
    };
    return options;
}

bool isRenaming(const ToolDefinition& tool) {
    return std::holds_alternative<std::unique_ptr<FileRenamer>>(tool.makeWork(tool.defaults, {}));
}

std::span<const CommandOption> renamingOptions() {
    static const std::vector<CommandOption> options{
        {.name = "keep", .help = "Keep the current names (default), for what the other options change"},
        {.name = "in-place", .help = wayHelp(RenameWay::inPlace, " All or none; the default.")},
        {.name = "copies", .help = wayHelp(RenameWay::copies, "")},
    };
    return options;
}

CommandDescription toolCommand(const ToolDefinition& tool) {
    CommandDescription command{.name = tool.id,
                               .operands = "PATH…",
                               .options = settingOptions(tool.schema),
                               .operandCompletes = Completes::files};
    if (const ToolInfo* info = ToolCatalog::withID(tool.id)) {
        command.summary = localized(info->title) + ": " + localized(info->subtitle);
    }
    std::ranges::copy(passwordOptions(tool.password), std::back_inserter(command.options));
    if (isRenaming(tool)) std::ranges::copy(renamingOptions(), std::back_inserter(command.options));
    std::ranges::copy(savingOptions(), std::back_inserter(command.options));
    std::ranges::copy(runningOptions(), std::back_inserter(command.options));
    return command;
}

CommandDescription estimateCommand(const ToolDefinition& tool) {
    CommandDescription command = *commandNamed("estimate");
    const auto settings = settingOptions(tool.schema);
    command.options.insert(command.options.begin(), settings.begin(), settings.end());
    return command;
}

}  // namespace tamble
