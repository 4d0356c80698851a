#include <Tamble/CommandLine/Arguments/PasswordArguments.h>
#include <Tamble/CommandLine/Arguments/SettingsArguments.h>
#include <Tamble/CommandLine/Commands/Commands.h>
#include <Tamble/CommandLine/Commands/JobRun.h>
#include <Tamble/CommandLine/Report/JobReport.h>
#include <Tamble/CommandLine/Report/ResultJson.h>
#include <Tamble/CommandLine/Text/Terminal.h>

#include <iostream>

namespace tamble {
namespace {

ExitStatus showPlan(const JobOrder& order, const ScanResult& scan, bool wantsJson) {
    const JobPlan plan = JobRunner(nullptr).plan(order);
    if (wantsJson) {
        printOutput(writeIndentedJson(jobPlanJson(order.files, plan)) + '\n');
    } else {
        for (const auto& line : planLines(order.files, plan)) printOutput(line + '\n');
    }
    return exitStatus(plan, scan);
}

}  // namespace

ExitStatus runTool(const ToolDefinition& tool, const CommandDescription& command,
                   const ParsedArguments& arguments) {
    const Json settings = settingsFrom(tool, arguments);
    const TypedJob job = typedJob(tool, command, arguments);
    JobOrder order{.tool = &tool, .settings = settings, .configuration = job.configuration};
    // A dry run opens nothing.
    if (!job.isDryRun) order.secrets = secretsFrom(tool, arguments, std::cin);
    ScanResult scan = scannedInputs(job);
    if (scan.files.empty() && !job.wantsJson) return ExitStatus::someFailed;
    order.files = std::move(scan.files);
    if (job.isDryRun) return showPlan(order, scan, job.wantsJson);
    const FinishedJob finished = runAndRemember(std::move(order));
    return reportSaved(finished, scan, job.wantsJson);
}

}  // namespace tamble
