#include <Tamble/CommandLine/Arguments/InputPaths.h>
#include <Tamble/CommandLine/Arguments/JobArguments.h>
#include <Tamble/CommandLine/Arguments/PasswordArguments.h>
#include <Tamble/CommandLine/Arguments/SettingsArguments.h>
#include <Tamble/CommandLine/Arguments/UsageError.h>
#include <Tamble/CommandLine/Commands/Commands.h>
#include <Tamble/CommandLine/Commands/InterruptedJobs.h>
#include <Tamble/CommandLine/Commands/Isolation.h>
#include <Tamble/CommandLine/Progress/ProgressDisplay.h>
#include <Tamble/CommandLine/Progress/StopSignals.h>
#include <Tamble/CommandLine/Progress/WatchedProcessor.h>
#include <Tamble/CommandLine/Report/JobReport.h>
#include <Tamble/CommandLine/Report/NothingFound.h>
#include <Tamble/CommandLine/Report/ResultJson.h>
#include <Tamble/CommandLine/Text/SafeText.h>
#include <Tamble/Model/ActivityStore.h>
#include <Tamble/Model/JobRecovery.h>

#include <TambleCore/Jobs/Journal/JournalFile.h>
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
    const Json settings = settingsFrom(tool, arguments);
    const JobConfiguration configuration = jobConfiguration(arguments);
    auto paths = inputPaths(command, arguments, std::cin);
    // A dry run opens nothing.
    const Secrets secrets = arguments.has("dry-run") ? Secrets{} : secretsFrom(tool, arguments, std::cin);
    TypedJob request{.work = protectedWork(tool, settings, secrets),
                     .configuration = configuration,
                     .paths = std::move(paths),
                     .scanOptions = ScanOptions(!arguments.has("no-subfolders")),
                     .isDryRun = arguments.has("dry-run"),
                     .wantsJson = arguments.has("json")};
    request.scanOptions.accepts = tool.accepts;
    return request;
}

JobEngine systemEngine(std::shared_ptr<JobJournal> journal = {}) {
    return {.fileOps = std::make_shared<SystemFileOperations>(), .journal = std::move(journal)};
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

JobResult runWatched(const JobEngine& engine, const TypedJob& request, std::vector<InputFile> files,
                     ProgressDisplay& display, std::stop_token stop) {
    const auto onProgress = [&display](const JobProgress& progress) { display.update(progress); };
    if (const auto* processor = std::get_if<std::unique_ptr<FileProcessor>>(&request.work)) {
        const WatchedProcessor watched(**processor, [&display](const InputFile& file) {
            display.startedFile(safeText(file.url.filename().native()));
        });
        return engine.run(std::move(files), watched, request.configuration, onProgress, std::move(stop));
    }
    return engine.runCombined(std::move(files), *std::get<std::unique_ptr<FileCombiner>>(request.work),
                              request.configuration, onProgress, std::move(stop));
}

struct FinishedJob {
    JobResult result;
    /// Empty when the job left nothing to remember.
    std::string activityID;
};

bool leftAnything(const JobResult& result) {
    const auto isDone = [](const ItemResult& item) {
        return std::holds_alternative<outcome::Done>(item.outcome);
    };
    return !result.undo.isEmpty() || std::ranges::any_of(result.items, isDone);
}

/// Whether the job is in the log for good.
bool remember(ActivityEntry entry) {
    return ActivityStore(systemEngine()).add(std::move(entry));
}

/// A signal is answered until the job is remembered: what was saved must be possible to undo.
FinishedJob runAndRemember(const std::string& toolID, const TypedJob& request, std::vector<InputFile> files) {
    ProgressDisplay display(Terminal::errors());
    std::stop_source stop;
    const StopSignals signals([&] { answerSignal(display, stop); });
    const journal::Job job = startedJob(toolID, files);
    const auto journal = std::make_shared<JournalFile>(journalFolder(), job);
    JobResult result =
        runWatched(systemEngine(journal), request, std::move(files), display, stop.get_token());
    const bool hasEntry = leftAnything(result);
    if (!hasEntry || remember(activityEntry(job, result))) journal->forget();
    return {.result = std::move(result), .activityID = hasEntry ? job.id : ""};
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

    announceInterruptedJobs();
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
