#include <Tamble/CommandLine/Arguments/CommandTable.h>
#include <Tamble/CommandLine/Arguments/UsageError.h>
#include <Tamble/CommandLine/CommandLine.h>
#include <Tamble/CommandLine/Commands/Commands.h>
#include <Tamble/CommandLine/Help/HelpPages.h>
#include <Tamble/CommandLine/Text/SafeText.h>
#include <Tamble/CommandLine/Version.h>

#include <TambleCore/Support/WorkContext.h>

#include <cstdio>
#include <filesystem>

#include <fmt/format.h>

namespace tamble {
namespace {

ExitStatus printPage(const HelpPage& page) {
    printOutput(rendered(page, Terminal::output()));
    return ExitStatus::allDone;
}

void rejectOperands(const CommandDescription& command, const ParsedArguments& arguments) {
    if (command.operands.empty() && !arguments.operands.empty()) {
        throw UsageError(fmt::format("{} takes no “{}”.", command.name, arguments.operands.front()));
    }
}

ExitStatus runCommand(const CommandDescription& command, std::span<const std::string> words) {
    if (command.name == "estimate") return estimateOutput(words);
    const ParsedArguments arguments = parseArguments(command, words);
    if (arguments.has("help")) return printPage(commandPage(command));
    rejectOperands(command, arguments);
    if (command.name == "tools") return listTools(arguments);
    if (command.name == "scan") return scanPaths(command, arguments);
    if (command.name == "activity") return listActivity(arguments);
    if (command.name == "undo") return undoJob(arguments);
    if (command.name == "completion") return printCompletion(arguments);
    return printManPage();
}

ExitStatus runToolNamed(const std::string& id, std::span<const std::string> words) {
    const ToolDefinition& tool = requiredTool(id);
    const CommandDescription command = toolCommand(tool);
    const ParsedArguments arguments = parseArguments(command, words);
    if (arguments.has("help")) return printPage(toolPage(*ToolCatalog::withID(id), tool));
    if (isRenaming(tool)) return renameFiles(tool, command, arguments);
    return runTool(tool, command, arguments);
}

ExitStatus dispatch(std::span<const std::string> words) {
    if (words.empty()) return printPage(overviewPage());
    const std::string& first = words.front();
    const auto rest = words.subspan(1);
    if (first == "--help" || first == "-h") return printPage(overviewPage());
    if (first == "--version" || first == "-V") {
        printOutput(fmt::format("tamble {}\n", version));
        return ExitStatus::allDone;
    }
    if (first == "help") {
        if (rest.empty()) return printPage(overviewPage());
        const std::vector<std::string> asked{rest.front(), "--help"};
        return dispatch(asked);
    }
    if (first.starts_with('-')) {
        throw UsageError(fmt::format("“{}” comes too early: the tool or command is the first word.", first));
    }
    if (const CommandDescription* command = commandNamed(first)) return runCommand(*command, rest);
    const bool isTool = ToolCatalog::withID(first) != nullptr;
    if (!isTool && std::filesystem::exists(first)) {
        throw UsageError(fmt::format("Say first what to do with “{}”, as in: tamble scan {}", first, first));
    }
    return runToolNamed(first, rest);
}

/// The word behind which --help tells more, if the first word is one.
std::string helpCommand(std::span<const std::string> words) {
    const bool isKnown =
        !words.empty() && (commandNamed(words.front()) || ToolCatalog::definition(words.front()));
    return isKnown ? fmt::format("tamble {} --help", words.front()) : "tamble --help";
}

/// Output that could not be written must not pass for success.
ExitStatus checkedOutput(ExitStatus status) {
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0) return status;
    printError("tamble: The output could not be written.\n");
    return status == ExitStatus::allDone ? ExitStatus::someFailed : status;
}

}  // namespace

ExitStatus runCommandLine(std::span<const std::string> words) {
    try {
        return checkedOutput(dispatch(words));
    } catch (const UsageError& error) {
        printError(fmt::format("tamble: {}\n", safeText(error.what())));
        printError(fmt::format("More: {}\n", safeText(helpCommand(words))));
        return ExitStatus::wrongUsage;
    } catch (const Cancelled&) {
        return ExitStatus::interrupted;
    } catch (const std::exception& error) {
        printError(fmt::format("tamble: Something went wrong: {}\n", safeText(error.what())));
        return ExitStatus::someFailed;
    }
}

}  // namespace tamble
