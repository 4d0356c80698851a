#include <Tamble/CommandLine/Arguments/InputPaths.h>
#include <Tamble/CommandLine/Arguments/JobArguments.h>
#include <Tamble/CommandLine/Arguments/SettingsArguments.h>
#include <Tamble/CommandLine/Arguments/UsageError.h>
#include <Tamble/CommandLine/Commands/Commands.h>
#include <Tamble/CommandLine/Commands/Isolation.h>
#include <Tamble/CommandLine/Progress/ProgressDisplay.h>
#include <Tamble/CommandLine/Progress/StopSignals.h>
#include <Tamble/CommandLine/Progress/WatchedProcessor.h>
#include <Tamble/CommandLine/Report/JobReport.h>
#include <Tamble/CommandLine/Report/NothingFound.h>
#include <Tamble/CommandLine/Report/ResultJson.h>
#include <Tamble/CommandLine/Text/SafeText.h>
#include <Tamble/Model/ActivityStore.h>

#include <TambleCore/Platform/SystemFileOperations.h>

#include <iostream>

namespace tamble {
namespace {

/// Everything that was typed, understood before anything is done.
struct TypedJob {
    ToolWork work;
    JobConfiguration configuration;
    std::vector<std::filesystem::path> paths;
    ScanOptions scanOptions;
    bool isDryRun = false;
    bool wantsJson = false;
};

TypedJob jobRequest(const ToolDefinition& tool, const CommandDescription& command,
                    const ParsedArguments& arguments) {
    TypedJob request{.work = protectedWork(tool, settingsFrom(tool, arguments)),
                     .configuration = jobConfiguration(arguments),
                     .paths = inputPaths(command, arguments, std::cin),
                     .scanOptions = ScanOptions(!arguments.has("no-subfolders")),
                     .isDryRun = arguments.has("dry-run"),
                     .wantsJson = arguments.has("json")};
    request.scanOptions.accepts = tool.accepts;
    return request;
}

JobEngine systemEngine() {
    return {.fileOps = std::make_shared<SystemFileOperations>()};
}

JobPlan planOf(const TypedJob& request, std::span<const InputFile> files) {
    if (const auto* processor = std::get_if<std::unique_ptr<FileProcessor>>(&request.work)) {
        return systemEngine().plan(files, **processor, request.configuration);
    }
    return systemEngine().planCombined(files, *std::get<std::unique_ptr<FileCombiner>>(request.work),
                                       request.configuration);
}

ExitStatus showPlan(const TypedJob& request, const ScanResult& scan) {
    const JobPlan plan = planOf(request, scan.files);
    if (request.wantsJson) {
        printOutput(writeIndentedJson(jobPlanJson(scan.files, plan)) + '\n');
    } else {
        for (const auto& line : planLines(scan.files, plan)) printOutput(line + '\n');
    }
    const bool wouldFail = std::ranges::any_of(
        plan.items, [](const auto& item) { return std::holds_alternative<outcome::Failed>(item); });
    return wouldFail || scan.unreadableCount > 0 ? ExitStatus::someFailed : ExitStatus::allDone;
}

void answerSignal(ProgressDisplay& display, std::stop_source& stop) {
    if (display.phase() != JobProgress::Phase::processing) {
        display.say("Saving; finishing first.");
    } else if (stop.request_stop()) {
        display.say("Stopping; nothing will be saved.");
    }
}

JobResult runWatched(const TypedJob& request, std::vector<InputFile> files, ProgressDisplay& display,
                     std::stop_token stop) {
    const auto onProgress = [&display](const JobProgress& progress) { display.update(progress); };
    if (const auto* processor = std::get_if<std::unique_ptr<FileProcessor>>(&request.work)) {
        const WatchedProcessor watched(**processor, [&display](const InputFile& file) {
            display.startedFile(safeText(file.url.filename().native()));
        });
        return systemEngine().run(std::move(files), watched, request.configuration, onProgress,
                                  std::move(stop));
    }
    return systemEngine().runCombined(std::move(files),
                                      *std::get<std::unique_ptr<FileCombiner>>(request.work),
                                      request.configuration, onProgress, std::move(stop));
}

/// Empty when the job left nothing to remember.
std::string rememberedID(const std::string& toolID, const JobResult& result) {
    const bool anyDone = std::ranges::any_of(
        result.items, [](const auto& item) { return std::holds_alternative<outcome::Done>(item.outcome); });
    if (!anyDone && result.undo.isEmpty()) return {};
    ActivityEntry entry = activityEntry(toolID, result);
    const std::string id = entry.id;
    ActivityStore store(systemEngine());
    store.load();
    store.add(std::move(entry));
    return id;
}

struct FinishedJob {
    JobResult result;
    std::string activityID;
};

/// A signal is answered until the job is remembered: what was saved must be possible to undo.
FinishedJob runAndRemember(const std::string& toolID, const TypedJob& request, std::vector<InputFile> files) {
    ProgressDisplay display(Terminal::errors());
    std::stop_source stop;
    const StopSignals signals([&] { answerSignal(display, stop); });
    FinishedJob job{.result = runWatched(request, std::move(files), display, stop.get_token())};
    job.activityID = rememberedID(toolID, job.result);
    return job;
}

ExitStatus exitStatus(const JobResult& result, const ScanResult& scan) {
    if (result.wasCancelled) return ExitStatus::interrupted;
    const bool anyFailed = std::ranges::any_of(
        result.items, [](const auto& item) { return std::holds_alternative<outcome::Failed>(item.outcome); });
    return anyFailed || scan.unreadableCount > 0 ? ExitStatus::someFailed : ExitStatus::allDone;
}

}  // namespace

ExitStatus runTool(const ToolDefinition& tool, const CommandDescription& command,
                   const ParsedArguments& arguments) {
    const TypedJob request = jobRequest(tool, command, arguments);
    ScanResult scan = FolderScanner{request.scanOptions}.scan(request.paths);
    for (const auto& note : scanNotes(scan)) printError(note + '\n');
    const bool isEmpty = scan.files.empty();
    if (isEmpty) printError(nothingFoundSentence(scan) + '\n');
    if (isEmpty && !request.wantsJson) return ExitStatus::someFailed;
    if (request.isDryRun) return showPlan(request, scan);

    const auto [result, id] = runAndRemember(tool.id, request, std::move(scan.files));
    for (const auto& line : problemLines(result)) printError(line + '\n');
    if (request.wantsJson) {
        printOutput(writeIndentedJson(jobResultJson(result, scan, id)) + '\n');
    } else {
        printOutput(closingLine(result, id.empty() ? "" : "tamble undo") + '\n');
    }
    return isEmpty ? ExitStatus::someFailed : exitStatus(result, scan);
}

}  // namespace tamble
