#include <Tamble/CommandLine/Arguments/CommandTable.h>
#include <Tamble/CommandLine/Arguments/SettingsArguments.h>
#include <Tamble/CommandLine/Arguments/UsageError.h>
#include <Tamble/CommandLine/Commands/Commands.h>
#include <Tamble/CommandLine/Commands/JobRun.h>
#include <Tamble/CommandLine/Report/RenameReport.h>
#include <Tamble/CommandLine/Report/ResultJson.h>
#include <Tamble/CommandLine/Text/Amounts.h>
#include <Tamble/CommandLine/Text/Terminal.h>

#include <algorithm>

#include <fmt/format.h>

namespace tamble {
namespace {

/// Which of the two was asked for; options that are about copies alone don't go with the other.
RenameWay typedWay(const ParsedArguments& arguments) {
    if (arguments.has("copies")) {
        if (arguments.has("in-place")) throw UsageError("--in-place and --copies exclude each other.");
        if (arguments.value("save") == "replace")
            throw UsageError("--save replace is --in-place: copies never take the place of the files.");
        return RenameWay::copies;
    }
    for (const CommandOption& option : savingOptions()) {
        if (arguments.has(option.name))
            throw UsageError(fmt::format("--{} is for copies: add --copies.", option.name));
    }
    return RenameWay::inPlace;
}

/// --keep is one of the two cases of the setting `base`.
ParsedArguments withKeepAsSetting(ParsedArguments arguments) {
    for (auto& given : arguments.options) {
        if (given.option == "keep") given = {.option = "base", .value = "keep"};
    }
    return arguments;
}

RenamePreview previewOf(const FileRenamer& renamer, const TypedJob& job, RenameWay way,
                        std::span<const InputFile> files) {
    auto names = renamer.plan(files, way);
    if (way == RenameWay::inPlace) return RenamePreview::inPlace(files, std::move(names));
    return {.way = way,
            .files = files,
            .names = std::move(names),
            .plan = systemEngine().plan(files, *renamer.copier(files), job.configuration)};
}

/// What people forget most.
void adviseNumbers(const RenamePreview& preview, const Json& settings) {
    const bool areSame = std::ranges::any_of(preview.names, [](const PlannedName& name) {
        return name.problem && name.problem->code == "duplicate";
    });
    if (areSame && settings.value("numbering", "") == "none")
        printError("Numbers tell files of one name apart: --numbering after\n");
}

ExitStatus showPreview(const RenamePreview& preview, const TypedJob& job, const ScanResult& scan) {
    if (job.wantsJson) {
        printOutput(writeIndentedJson(previewJson(preview)) + '\n');
    } else {
        const Terminal terminal = Terminal::output();
        const auto width = terminal.isLive() ? std::optional(terminal.width()) : std::nullopt;
        for (const auto& line : previewLines(preview, width)) printOutput(line + '\n');
    }
    return exitStatus(preview.plan, scan);
}

bool isRefused(const JobResult& result) {
    return std::ranges::any_of(result.items, [](const ItemResult& item) {
        const auto* failed = std::get_if<outcome::Failed>(&item.outcome);
        return failed != nullptr && failed->value.stage == ItemFailure::Stage::processing;
    });
}

/// Nothing was touched, because some names have a problem.
void tellRefusal(const FileRenamer& renamer, const JobResult& result, const Json& settings, bool wantsJson) {
    std::vector<InputFile> files;
    for (const ItemResult& item : result.items) files.push_back(item.file);
    const auto preview = RenamePreview::inPlace(files, renamer.plan(files, RenameWay::inPlace));
    for (const auto& line : previewProblems(preview)) printError(line + '\n');
    adviseNumbers(preview, settings);
    const auto count = preview.problemCount();
    if (!wantsJson) {
        printOutput(
            fmt::format("Nothing was renamed: {} a problem.\n", countText(count, "name has", "names have")));
    }
}

ExitStatus renameInPlace(const FileRenamer& renamer, JobOrder order, const ScanResult& scan, bool wantsJson) {
    const Json settings = order.settings;
    const auto [result, id] = runAndRemember(std::move(order));
    if (isRefused(result)) {
        tellRefusal(renamer, result, settings, wantsJson);
    } else {
        for (const auto& line : renameProblems(result)) printError(line + '\n');
        if (!wantsJson) printOutput(renameClosingLine(result, id.empty() ? "" : "tamble undo") + '\n');
    }
    if (wantsJson) printOutput(writeIndentedJson(jobResultJson(result, scan, id)) + '\n');
    return result.items.empty() ? ExitStatus::someFailed : exitStatus(result, scan);
}

}  // namespace

ExitStatus renameFiles(const ToolDefinition& tool, const CommandDescription& command,
                       const ParsedArguments& arguments) {
    const RenameWay way = typedWay(arguments);
    const Json settings = settingsFrom(tool, withKeepAsSetting(arguments));
    const TypedJob job = typedJob(tool, command, arguments);
    const ToolWork work = tool.makeWork(settings, {});
    const FileRenamer& renamer = *std::get<std::unique_ptr<FileRenamer>>(work);
    ScanResult scan = scannedInputs(job);
    if (scan.files.empty() && !job.wantsJson) return ExitStatus::someFailed;
    if (job.isDryRun) {
        const RenamePreview preview = previewOf(renamer, job, way, scan.files);
        const ExitStatus status = showPreview(preview, job, scan);
        adviseNumbers(preview, settings);
        return status;
    }
    JobOrder order{.tool = &tool,
                   .settings = settings,
                   .files = std::move(scan.files),
                   .configuration = job.configuration,
                   .renameWay = way};
    if (way == RenameWay::inPlace) return renameInPlace(renamer, std::move(order), scan, job.wantsJson);
    const FinishedJob finished = runAndRemember(std::move(order));
    return reportSaved(finished, scan, job.wantsJson);
}

}  // namespace tamble
