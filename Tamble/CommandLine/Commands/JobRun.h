#pragma once

#include <Tamble/CommandLine/Arguments/ArgumentParser.h>
#include <Tamble/CommandLine/ExitStatus.h>
#include <Tamble/Model/JobRunner.h>

#include <TambleCore/Intake/FolderScanner.h>

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

/// Runs the job and puts it into the activity log, the file in work named in the progress. Signals stop it as
/// long as nothing is changed.
FinishedJob runAndRemember(JobOrder order);

/// Tells what became of a job that made new files.
ExitStatus reportSaved(const FinishedJob& job, const ScanResult& scan, bool wantsJson);

ExitStatus exitStatus(const JobResult& result, const ScanResult& scan);
/// A plan in which something would fail is not all done.
ExitStatus exitStatus(const JobPlan& plan, const ScanResult& scan);

}  // namespace tamble
