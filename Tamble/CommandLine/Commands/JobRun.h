#pragma once

#include <Tamble/CommandLine/Arguments/ArgumentParser.h>
#include <Tamble/CommandLine/ExitStatus.h>
#include <Tamble/CommandLine/Progress/ProgressDisplay.h>

#include <TambleCore/Intake/FolderScanner.h>
#include <TambleCore/Jobs/JobEngine.h>
#include <TambleCore/Jobs/ToolDefinition.h>

/// What the commands that run jobs share.
namespace tamble {

/// What was typed beside the tool's settings, understood before anything is done.
struct TypedJob {
    JobConfiguration configuration;
    std::vector<std::filesystem::path> paths;
    ScanOptions scanOptions;
    bool isDryRun = false;
    bool wantsJson = false;
};

/// Recovers what was interrupted before it looks for the inputs, except for a dry run. Throws UsageError.
TypedJob typedJob(const ToolDefinition& tool, const CommandDescription& command,
                  const ParsedArguments& arguments);

/// Looks through the inputs, and says what was left out or why there are none.
ScanResult scannedInputs(const TypedJob& job);

JobEngine systemEngine(std::shared_ptr<JobJournal> journal = {});

struct FinishedJob {
    JobResult result;
    /// Empty when the job left nothing to remember.
    std::string activityID;
};

using RunJob = std::function<JobResult(const JobEngine& engine, std::vector<InputFile> files,
                                       ProgressDisplay& display, std::stop_token stop)>;

/// Runs the job with a journal, and puts it into the activity log. Signals stop it as long as nothing is
/// changed.
FinishedJob runAndRemember(const std::string& toolID, std::vector<InputFile> files, const RunJob& run);

/// A tool with one output per input, its files named in the progress.
RunJob runProcessor(const FileProcessor& processor, const JobConfiguration& configuration);

/// Tells what became of a job that made new files.
ExitStatus reportSaved(const FinishedJob& job, const ScanResult& scan, bool wantsJson);

ExitStatus exitStatus(const JobResult& result, const ScanResult& scan);
/// A plan in which something would fail is not all done.
ExitStatus exitStatus(const JobPlan& plan, const ScanResult& scan);

}  // namespace tamble
