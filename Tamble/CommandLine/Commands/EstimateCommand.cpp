#include <Tamble/CommandLine/Arguments/CommandTable.h>
#include <Tamble/CommandLine/Arguments/InputPaths.h>
#include <Tamble/CommandLine/Arguments/SettingsArguments.h>
#include <Tamble/CommandLine/Arguments/UsageError.h>
#include <Tamble/CommandLine/Commands/Commands.h>
#include <Tamble/CommandLine/Help/HelpPages.h>
#include <Tamble/CommandLine/Report/NothingFound.h>
#include <Tamble/CommandLine/Text/Amounts.h>
#include <Tamble/Model/ProtectedWork.h>

#include <iostream>

#include <fmt/format.h>

namespace tamble {
namespace {

ExitStatus printEstimate(const ToolDefinition& tool, const ParsedArguments& arguments,
                         const ScanResult& scan) {
    const Json settings = settingsFrom(tool, arguments);
    WorkerPool pool;
    const auto bytes = protectedEstimate(tool, scan.files, settings, pool, {});
    if (arguments.has("json")) {
        Json json = Json::object();
        json["toolID"] = tool.id;
        json["fileCount"] = scan.files.size();
        json["inputBytes"] = scan.totalBytes;
        json["estimatedBytes"] = bytes ? Json(*bytes) : Json(nullptr);
        printOutput(writeIndentedJson(json) + '\n');
    } else if (bytes) {
        printOutput(fmt::format("About {}, from {} in {} ({}).\n", sizeText(*bytes),
                                sizeText(scan.totalBytes),
                                countText(static_cast<std::int64_t>(scan.files.size()), "file", "files"),
                                changeText(scan.totalBytes, *bytes)));
    } else {
        printError("There is no estimate for these files.\n");
    }
    return bytes ? ExitStatus::allDone : ExitStatus::someFailed;
}

}  // namespace

ExitStatus estimateOutput(std::span<const std::string> words) {
    const bool asksForHelp = !words.empty() && (words.front() == "--help" || words.front() == "-h");
    if (asksForHelp) {
        printOutput(rendered(commandPage(*commandNamed("estimate")), Terminal::output()));
        return ExitStatus::allDone;
    }
    if (words.empty() || words.front().starts_with('-')) {
        throw UsageError("estimate needs a tool first, as in: tamble estimate image.convert PATH…");
    }
    const ToolDefinition& tool = requiredTool(words.front());
    const CommandDescription command = estimateCommand(tool);
    const ParsedArguments arguments = parseArguments(command, words.subspan(1));
    if (arguments.has("help")) {
        printOutput(rendered(commandPage(command), Terminal::output()));
        return ExitStatus::allDone;
    }
    const auto paths = inputPaths(command, arguments, std::cin);
    ScanOptions options(!arguments.has("no-subfolders"));
    options.accepts = tool.accepts;
    const ScanResult scan = FolderScanner{options}.scan(paths);
    if (scan.files.empty()) {
        printError(nothingFoundSentence(scan) + '\n');
        if (!arguments.has("json")) return ExitStatus::someFailed;
    }
    return printEstimate(tool, arguments, scan);
}

}  // namespace tamble
