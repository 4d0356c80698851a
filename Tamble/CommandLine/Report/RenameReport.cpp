#include <Tamble/CommandLine/Report/JobReport.h>
#include <Tamble/CommandLine/Report/RenameReport.h>
#include <Tamble/CommandLine/Report/ResultJson.h>
#include <Tamble/CommandLine/Text/Amounts.h>
#include <Tamble/CommandLine/Text/Layout.h>
#include <Tamble/CommandLine/Text/SafeText.h>

#include <TambleCore/Support/Text.h>
#include <TambleCore/Support/Wording.h>

#include <algorithm>

#include <fmt/format.h>

namespace tamble {
namespace {

constexpr std::string_view arrow = "  →  ";
constexpr std::string_view gap = "  ";

struct Row {
    std::string oldName;
    std::string newName;
    std::string remark;
};

std::string nameOf(const FilePath& path) {
    return safeText(path.filename().native());
}

/// Where the file would be: in its own folder, its name says it.
std::string newPlace(const InputFile& file, const FilePath& target) {
    return file.url.parent_path() == target.parent_path() ? nameOf(target) : shownPath(target);
}

Row rowOf(const RenamePreview& preview, std::size_t index) {
    const InputFile& file = preview.files[index];
    const PlannedName& name = preview.names[index];
    Row row{.oldName = shownPath(file.url), .newName = safeText(name.newName), .remark = {}};
    const PlannedOutcome& planned = preview.plan.items[index];
    if (name.problem) row.remark = localized(name.problem->detail);
    if (const auto* placement = std::get_if<Placement>(&planned)) {
        row.newName = newPlace(file, placement->target);
        if (placement->clashing) row.remark = "The existing file goes to the Bin";
    } else if (const auto* skipped = std::get_if<outcome::Skipped>(&planned)) {
        row.remark = localized(sentence(skipped->value));
    }
    return row;
}

template <typename Outcome>
std::int64_t countOf(const JobPlan& plan) {
    return std::ranges::count_if(
        plan.items, [](const auto& planned) { return std::holds_alternative<Outcome>(planned); });
}

std::string previewClosingLine(const RenamePreview& preview) {
    const auto placed = countOf<Placement>(preview.plan), skipped = countOf<outcome::Skipped>(preview.plan);
    const bool isInPlace = preview.way == RenameWay::inPlace;
    std::string line = isInPlace ? countText(placed, "file", "files") + " would be renamed"
                                 : countText(placed, "copy", "copies") + " would be saved";
    if (skipped > 0) line += fmt::format(", {} skipped", skipped);
    if (const auto failed = countOf<outcome::Failed>(preview.plan); failed > 0) {
        line += fmt::format(", {} {} a problem{}", failed, failed == 1 ? "has" : "have",
                            isInPlace ? ", and until that is mended none is renamed" : "");
    }
    return line + ". Nothing was touched.";
}

std::size_t widest(const std::vector<Row>& rows, std::string Row::*column) {
    std::size_t width = 0;
    for (const Row& row : rows) width = std::max(width, displayWidth(row.*column));
    return width;
}

const ItemFailure* failureOf(const ItemResult& item) {
    const auto* failed = std::get_if<outcome::Failed>(&item.outcome);
    return failed == nullptr ? nullptr : &failed->value;
}

}  // namespace

RenamePreview RenamePreview::inPlace(std::span<const InputFile> files, std::vector<PlannedName> names) {
    RenamePreview preview{.way = RenameWay::inPlace, .files = files, .names = std::move(names), .plan = {}};
    for (std::size_t i = 0; i < files.size(); ++i) {
        const PlannedName& name = preview.names[i];
        const FilePath target = files[i].url.parent_path() / name.newName;
        if (name.problem) {
            preview.plan.items.emplace_back(outcome::Failed{*name.problem});
        } else if (target == files[i].url) {
            preview.plan.items.emplace_back(outcome::Skipped{skip::SameName{}});
        } else {
            preview.plan.items.emplace_back(Placement{.target = target});
        }
    }
    return preview;
}

std::int64_t RenamePreview::problemCount() const {
    return std::ranges::count_if(names, [](const PlannedName& name) { return name.problem.has_value(); });
}

std::vector<std::string> previewLines(const RenamePreview& preview, std::optional<std::size_t> width) {
    std::vector<Row> rows;
    for (std::size_t i = 0; i < preview.files.size(); ++i) rows.push_back(rowOf(preview, i));
    std::size_t oldWidth = widest(rows, &Row::oldName), newWidth = widest(rows, &Row::newName);
    if (width) {
        // What a remark takes comes first: the names give way to it, each with its half.
        const std::size_t remark = widest(rows, &Row::remark);
        const std::size_t taken = displayWidth(arrow) + (remark > 0 ? gap.size() + remark : 0);
        constexpr std::size_t leastNames = 24;
        const std::size_t room = std::max(*width > taken ? *width - taken : 0, leastNames);
        oldWidth = std::min(oldWidth, std::max(room / 2, room - std::min(room, newWidth)));
        newWidth = std::min(newWidth, room - oldWidth);
    }
    std::vector<std::string> lines;
    for (const Row& row : rows) {
        const std::string oldName = padded(shortened(row.oldName, oldWidth), oldWidth);
        const std::string newName = shortened(row.newName, newWidth);
        lines.push_back(row.remark.empty() ? fmt::format("{}{}{}", oldName, arrow, newName)
                                           : fmt::format("{}{}{}{}{}", oldName, arrow,
                                                         padded(newName, newWidth), gap, row.remark));
    }
    lines.push_back(previewClosingLine(preview));
    return lines;
}

std::vector<std::string> previewProblems(const RenamePreview& preview) {
    std::vector<std::string> lines;
    for (std::size_t i = 0; i < preview.files.size(); ++i) {
        const PlannedName& name = preview.names[i];
        if (!name.problem) continue;
        lines.push_back(fmt::format("{} → {}: {}", shownPath(preview.files[i].url), safeText(name.newName),
                                    localized(name.problem->detail)));
    }
    return lines;
}

Json previewJson(const RenamePreview& preview) {
    Json json = jobPlanJson(preview.files, preview.plan);
    json["way"] = encodeJson(preview.way);
    for (std::size_t i = 0; i < preview.names.size(); ++i) {
        const PlannedName& name = preview.names[i];
        Json& item = json["items"][i];
        item["newName"] = printable(name.newName);
        if (name.problem) item["problem"] = encodeJson(*name.problem);
    }
    return json;
}

std::vector<std::string> renameProblems(const JobResult& result) {
    std::vector<std::string> lines;
    for (const ItemResult& item : result.items) {
        const ItemFailure* failure = failureOf(item);
        if (failure == nullptr || failure->code == "nothingRenamed") continue;
        lines.push_back(failure->code == "cannotRename"
                            ? shownPath(item.file.url) + " couldn't be renamed."
                            : fmt::format("{}: {}", shownPath(item.file.url), safeText(failure->detail)));
    }
    return lines;
}

std::string renameClosingLine(const JobResult& result, const std::string& undoCommand) {
    if (result.wasCancelled) return "Stopped before renaming; all the old names were kept.";
    std::int64_t renamed = 0, skipped = 0, stranded = 0;
    std::string failure;
    for (const ItemResult& item : result.items) {
        renamed += std::holds_alternative<outcome::Done>(item.outcome) ? 1 : 0;
        skipped += std::holds_alternative<outcome::Skipped>(item.outcome) ? 1 : 0;
        const ItemFailure* failed = failureOf(item);
        if (failed == nullptr) continue;
        const bool isStranded = failed->code == "oldNameNotBack";
        stranded += isStranded ? 1 : 0;
        if (!isStranded) failure = localized(failed->detail);
    }
    std::string line = failure;
    if (stranded > 0) {
        // The sentence says that all the old names were kept.
        line = fmt::format("A file couldn't be renamed, and {} couldn't get the old name back.",
                           countText(stranded, "other file", "other files"));
    } else if (failure.empty()) {
        line = renamed == 0 ? "Nothing was renamed."
                            : fmt::format("Renamed {}.", countText(renamed, "file", "files"));
    }
    if (skipped > 0) line += fmt::format(" {} skipped: {}.", skipped, localized(sentence(skip::SameName{})));
    if (!undoCommand.empty()) line += fmt::format(" To undo: {}", undoCommand);
    return line;
}

}  // namespace tamble
