#include <Tamble/CommandLine/Arguments/InputPaths.h>
#include <Tamble/CommandLine/Arguments/JobArguments.h>
#include <Tamble/CommandLine/Commands/InterruptedJobs.h>
#include <Tamble/CommandLine/Commands/JobRun.h>
#include <Tamble/CommandLine/Progress/ProgressDisplay.h>
#include <Tamble/CommandLine/Progress/StopSignals.h>
#include <Tamble/CommandLine/Report/JobReport.h>
#include <Tamble/CommandLine/Report/NothingFound.h>
#include <Tamble/CommandLine/Report/ResultJson.h>
#include <Tamble/CommandLine/Text/SafeText.h>

#include <algorithm>
#include <iostream>

namespace tamble {
namespace {

constexpr auto hasFailed = [](const auto& outcome) {
    return std::holds_alternative<outcome::Failed>(outcome);
};

void answerSignal(ProgressDisplay& display, std::stop_source& stop) {
    if (display.phase() != JobProgress::Phase::processing) {
        display.say("Saving; finishing first.");
    } else if (stop.request_stop()) {
        display.say("Stopping; nothing will be saved.");
    }
}

}  // namespace

TypedJob typedJob(const ToolDefinition& tool, const CommandDescription& command,
                  const ParsedArguments& arguments) {
    TypedJob job{.configuration = jobConfiguration(arguments),
                 .paths = {},
                 .scanOptions = ScanOptions(!arguments.has("no-subfolders")),
                 .isDryRun = arguments.has("dry-run"),
                 .wantsJson = arguments.has("json")};
    job.scanOptions.accepts = tool.accepts;
    // Files that a dead program was renaming are found again once they have their old names.
    if (!job.isDryRun) announceInterruptedJobs();
    job.paths = inputPaths(command, arguments, std::cin);
    return job;
}

ScanResult scannedInputs(const TypedJob& job) {
    ScanResult scan = FolderScanner{job.scanOptions}.scan(job.paths);
    for (const auto& note : scanNotes(scan)) printError(note + '\n');
    if (scan.files.empty()) printError(nothingFoundSentence(scan) + '\n');
    return scan;
}

FinishedJob runAndRemember(JobOrder order) {
    ProgressDisplay display(Terminal::errors());
    std::stop_source stop;
    // A signal is answered until the job is remembered: what was changed must be possible to undo.
    const StopSignals signals([&] { answerSignal(display, stop); });
    const JobRunner::Watch watch{
        .onProgress = [&display](const JobProgress& progress) { display.update(progress); },
        .onStart =
            [&display](const InputFile& file) {
                display.startedFile(safeText(file.url.filename().native()));
            }};
    return JobRunner(std::make_shared<WorkerPool>()).run(std::move(order), watch, stop.get_token());
}

ExitStatus reportSaved(const FinishedJob& job, const ScanResult& scan, bool wantsJson) {
    const auto& [result, id] = job;
    for (const auto& line : problemLines(result)) printError(line + '\n');
    if (wantsJson) {
        printOutput(writeIndentedJson(jobResultJson(result, scan, id)) + '\n');
    } else {
        printOutput(closingLine(result, id.empty() ? "" : "tamble undo") + '\n');
    }
    return result.items.empty() ? ExitStatus::someFailed : exitStatus(result, scan);
}

ExitStatus exitStatus(const JobResult& result, const ScanResult& scan) {
    if (result.wasCancelled) return ExitStatus::interrupted;
    const bool anyFailed = std::ranges::any_of(result.items, hasFailed, &ItemResult::outcome);
    return anyFailed || scan.unreadableCount > 0 ? ExitStatus::someFailed : ExitStatus::allDone;
}

ExitStatus exitStatus(const JobPlan& plan, const ScanResult& scan) {
    const bool anyWouldFail = std::ranges::any_of(plan.items, hasFailed);
    return anyWouldFail || scan.unreadableCount > 0 ? ExitStatus::someFailed : ExitStatus::allDone;
}

}  // namespace tamble
