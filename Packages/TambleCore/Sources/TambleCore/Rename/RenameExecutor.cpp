#include <TambleCore/Jobs/Renaming/RenameMoves.h>
#include <TambleCore/Platform/SystemError.h>
#include <TambleCore/Rename/RenameExecutor.h>
#include <TambleCore/Support/Log.h>

namespace tamble {
namespace {

constexpr Log renameLog("rename");

constexpr const char* nothingRenamed =
    "Nothing was renamed: a file couldn't be renamed (it may be open or locked), so all the old names were "
    "kept.";

std::string causeOf(const std::exception_ptr& problem) {
    try {
        std::rethrow_exception(problem);
    } catch (const std::exception& error) {
        return tamble::causeOf(error);
    }
}

std::vector<RenamedItem> neededRenames(std::span<const RenameItem> items) {
    std::vector<RenamedItem> needed;
    needed.reserve(items.size());
    for (const RenameItem& item : items) {
        if (!keepsItsName(item)) needed.push_back({.from = item.file.url, .to = renamedPath(item)});
    }
    return needed;
}

/// Nothing is changed unless the whole plan is written down.
void announce(std::span<const PlannedRename> renames, JobJournal* journal) {
    if (journal == nullptr) return;
    try {
        for (const PlannedRename& rename : renames) journal->willRename(rename);
        journal->willBeginSaving();
    } catch (const std::exception& error) {
        throw RenameFailure("cannotRename",
                            "Couldn't write down what would be changed: " + tamble::causeOf(error));
    }
}

/// What has happened has happened, whether or not it could be written down.
void tell(JobJournal* journal, void (JobJournal::*message)()) {
    if (journal == nullptr) return;
    try {
        (journal->*message)();
    } catch (const std::exception& error) {
        renameLog.error("Couldn't write the journal: {}", tamble::causeOf(error));
    }
}

/// The files that stand elsewhere than the moves were to bring them, their old names.
std::vector<RenamedItem> strandedOf(const RenameMoves& back) {
    std::vector<RenamedItem> stranded;
    for (std::size_t i = 0; i < back.renames().size(); ++i) {
        const PlannedRename& rename = back.renames()[i];
        if (back.place(i) == RenamePlace::from) stranded.push_back({.from = rename.to, .to = rename.from});
        if (back.place(i) == RenamePlace::parked)
            stranded.push_back({.from = rename.to, .to = *rename.parked});
    }
    return stranded;
}

[[noreturn]] void takeBack(const RenameMoves& moves, JobJournal* journal) {
    RenameMoves back = moves.back();
    const auto problem = back.run(RenameMoves::AfterProblem::goOn);
    RenameFailure failure("cannotRename", nothingRenamed);
    failure.culprit = moves.renames()[moves.firstProblem()].from;
    failure.stranded = strandedOf(back);
    if (failure.stranded.empty()) {
        renameLog.notice("Renaming: all the old names are back");
        tell(journal, &JobJournal::didKeepAllNames);
    } else {
        renameLog.error("Couldn't give {} files their old names back: {}", failure.stranded.size(),
                        problem ? causeOf(problem) : "");
    }
    throw failure;
}

}  // namespace

RenameFailure::~RenameFailure() = default;

std::vector<RenamedItem> RenameExecutor::rename(std::span<const RenameItem> items, FileOperations& fileOps,
                                                JobJournal* journal,
                                                const std::function<void(double)>& report) {
    std::vector<RenamedItem> renamed = neededRenames(items);
    if (renamed.empty()) return renamed;
    RenameMoves moves(plannedRenames(renamed, ".tamble-"), fileOps);
    const auto waiting = std::ranges::count_if(
        moves.renames(), [](const PlannedRename& rename) { return rename.parked.has_value(); });
    const double allMoves = static_cast<double>(renamed.size()) + static_cast<double>(waiting);
    announce(moves.renames(), journal);
    renameLog.notice("Renaming {} files, {} of them by way of temporary names", renamed.size(), waiting);
    double moved = 0;
    const auto problem = moves.run(RenameMoves::AfterProblem::stop, [&] {
        if (report) report(++moved / allMoves);
    });
    if (problem) {
        renameLog.error("Couldn't rename {}: {}", privately(moves.renames()[moves.firstProblem()].from),
                        causeOf(problem));
        takeBack(moves, journal);
    }
    tell(journal, &JobJournal::didRenameAll);
    renameLog.notice("Renamed {} files", renamed.size());
    return renamed;
}

}  // namespace tamble
