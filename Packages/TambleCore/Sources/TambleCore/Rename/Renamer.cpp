#include <TambleCore/Jobs/ProgressTracker.h>
#include <TambleCore/Rename/RenameCopyProcessor.h>
#include <TambleCore/Rename/RenameExecutor.h>
#include <TambleCore/Rename/RenamePlanner.h>
#include <TambleCore/Rename/Renamer.h>

#include <algorithm>
#include <chrono>
#include <unordered_map>

#include <fmt/format.h>

namespace tamble {
namespace {

std::vector<RenameItem> planned(std::span<const InputFile> files, const RenamePattern& pattern,
                                RenameWay way) {
    return RenamePlanner::plan(files, pattern, way, RenamePlanner::namesOnDisk(files, way));
}

std::optional<ItemFailure> failureOf(const RenameItem& item) {
    if (!item.problem) return std::nullopt;
    return ItemFailure{.code = std::string(caseName(*item.problem)),
                       .detail = std::string(sentence(*item.problem))};
}

/// While any item has a problem, the others wait.
ItemOutcome refused(const RenameItem& item) {
    if (auto problem = failureOf(item)) return outcome::Failed{*std::move(problem)};
    return outcome::Cancelled{};
}

outcome::Failed failed(std::string code, std::string detail) {
    return {{.stage = ItemFailure::Stage::saving, .code = std::move(code), .detail = std::move(detail)}};
}

ItemOutcome renamed(const RenameItem& item) {
    if (keepsItsName(item)) return outcome::Skipped{skip::SameName{}};
    return outcome::Done{.value = renamedPath(item)};
}

/// How each item ended after a failure that was taken back, as far as it could be.
class Kept {
  public:
    explicit Kept(const RenameFailure& failure) : failure_(failure) {
        for (const RenamedItem& item : failure.stranded) places_.emplace(item.from.native(), item.to);
    }

    ItemOutcome operator()(const RenameItem& item) const {
        const auto stranded = places_.find(item.file.url.native());
        if (stranded != places_.end()) {
            return failed("oldNameNotBack",
                          fmt::format("This file couldn't get its old name back; it is at “{}”. Undo tries "
                                      "it again.",
                                      stranded->second.filename().native()));
        }
        const bool isCulprit = failure_.culprit == item.file.url;
        return failed(isCulprit ? failure_.code() : "nothingRenamed", failure_.sentence());
    }

  private:
    const RenameFailure& failure_;
    std::unordered_map<std::string, FilePath> places_;
};

template <typename Outcome>
void addItems(JobResult& result, std::vector<RenameItem> items, const Outcome& outcomeOf) {
    result.items.reserve(items.size());
    for (RenameItem& item : items) {
        ItemOutcome itemOutcome = outcomeOf(item);
        result.items.push_back({std::move(item.file), std::move(itemOutcome)});
    }
}

}  // namespace

std::vector<PlannedName> Renamer::plan(std::span<const InputFile> files, RenameWay way) const {
    std::vector<PlannedName> names;
    names.reserve(files.size());
    for (RenameItem& item : planned(files, pattern_, way)) {
        names.push_back({.newName = std::move(item.newName), .problem = failureOf(item)});
    }
    return names;
}

JobResult Renamer::renameInPlace(std::vector<InputFile> files, const JobEngine& engine,
                                 const ProgressCallback& onProgress, std::stop_token stop) const {
    const auto start = std::chrono::steady_clock::now();
    ProgressTracker tracker(static_cast<int>(files.size()), onProgress);
    std::vector<RenameItem> items = planned(files, pattern_, RenameWay::inPlace);
    JobResult result;
    if (stop.stop_requested() && !items.empty()) {
        result.wasCancelled = true;
        addItems(result, std::move(items), [](const RenameItem&) { return outcome::Cancelled{}; });
    } else if (std::ranges::any_of(items, [](const RenameItem& item) { return item.problem.has_value(); })) {
        addItems(result, std::move(items), refused);
    } else {
        tracker.saving(0);
        const auto report = [&](double fraction) {
            tracker.saving(static_cast<int>(fraction * static_cast<double>(files.size())));
        };
        try {
            result.undo.renamedItems =
                RenameExecutor::rename(items, *engine.fileOps, engine.journal.get(), report);
            addItems(result, std::move(items), renamed);
        } catch (const RenameFailure& failure) {
            result.undo.renamedItems = failure.stranded;
            addItems(result, std::move(items), Kept(failure));
        }
    }
    tracker.finishJob();
    result.duration = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    return result;
}

std::unique_ptr<FileProcessor> Renamer::copier(std::span<const InputFile> files) const {
    return std::make_unique<RenameCopyProcessor>(planned(files, pattern_, RenameWay::copies));
}

}  // namespace tamble
