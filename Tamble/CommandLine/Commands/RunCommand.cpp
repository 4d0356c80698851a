#include <Tamble/CommandLine/Arguments/PasswordArguments.h>
#include <Tamble/CommandLine/Arguments/SettingsArguments.h>
#include <Tamble/CommandLine/Commands/Commands.h>
#include <Tamble/CommandLine/Commands/Isolation.h>
#include <Tamble/CommandLine/Commands/JobRun.h>
#include <Tamble/CommandLine/Report/JobReport.h>
#include <Tamble/CommandLine/Report/ResultJson.h>

#include <iostream>

namespace tamble {
namespace {

using Processor = std::unique_ptr<FileProcessor>;
using Combiner = std::unique_ptr<FileCombiner>;

JobPlan planOf(const ToolWork& work, const TypedJob& job, std::span<const InputFile> files) {
    if (const auto* processor = std::get_if<Processor>(&work)) {
        return systemEngine().plan(files, **processor, job.configuration);
    }
    return systemEngine().planCombined(files, *std::get<Combiner>(work), job.configuration);
}

ExitStatus showPlan(const ToolWork& work, const TypedJob& job, const ScanResult& scan) {
    const JobPlan plan = planOf(work, job, scan.files);
    if (job.wantsJson) {
        printOutput(writeIndentedJson(jobPlanJson(scan.files, plan)) + '\n');
    } else {
        for (const auto& line : planLines(scan.files, plan)) printOutput(line + '\n');
    }
    return exitStatus(plan, scan);
}

RunJob runWork(const ToolWork& work, const JobConfiguration& configuration) {
    if (const auto* processor = std::get_if<Processor>(&work)) {
        return runProcessor(**processor, configuration);
    }
    return [&combiner = *std::get<Combiner>(work), configuration](
               const JobEngine& engine, std::vector<InputFile> files, ProgressDisplay& display,
               std::stop_token stop) {
        return engine.runCombined(
            std::move(files), combiner, configuration,
            [&display](const JobProgress& progress) { display.update(progress); }, std::move(stop));
    };
}

}  // namespace

ExitStatus runTool(const ToolDefinition& tool, const CommandDescription& command,
                   const ParsedArguments& arguments) {
    const Json settings = settingsFrom(tool, arguments);
    const TypedJob job = typedJob(tool, command, arguments);
    // A dry run opens nothing.
    const Secrets secrets = job.isDryRun ? Secrets{} : secretsFrom(tool, arguments, std::cin);
    const ToolWork work = protectedWork(tool, settings, secrets);
    ScanResult scan = scannedInputs(job);
    if (scan.files.empty() && !job.wantsJson) return ExitStatus::someFailed;
    if (job.isDryRun) return showPlan(work, job, scan);
    const FinishedJob finished =
        runAndRemember(tool.id, std::move(scan.files), runWork(work, job.configuration));
    return reportSaved(finished, scan, job.wantsJson);
}

}  // namespace tamble
