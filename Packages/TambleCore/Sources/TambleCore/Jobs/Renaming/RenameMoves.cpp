#include <TambleCore/Jobs/Renaming/RenameMoves.h>
#include <TambleCore/Platform/FileProperties.h>

#include <algorithm>
#include <utility>

namespace tamble {
namespace {

const FilePath& pathAt(const PlannedRename& rename, RenamePlace place) {
    switch (place) {
        case RenamePlace::parked:
            if (rename.parked) return *rename.parked;
            break;
        case RenamePlace::to:
            return rename.to;
        case RenamePlace::from:
        case RenamePlace::gone:
            break;
    }
    return rename.from;
}

/// What happened counts, not what was answered. The file's number tells without a look at both places before
/// every move, which would take as long as the moves.
bool happened(const PlannedRename& rename, RenamePlace from, RenamePlace to) {
    return rename.inode != 0 && inodeOf(pathAt(rename, to)) == rename.inode && !isThere(pathAt(rename, from));
}

}  // namespace

RenamePlace placeOf(const PlannedRename& rename) {
    // Nobody else has the hidden name.
    if (rename.parked && isThere(*rename.parked)) return RenamePlace::parked;
    const auto atFrom = inodeOf(rename.from), atTo = inodeOf(rename.to);
    if (rename.inode != 0) {
        if (atTo == rename.inode) return RenamePlace::to;
        if (atFrom == rename.inode) return RenamePlace::from;
    }
    // Saved anew since, or of a file system that gives another number after every start: then a name tells
    // only if the other one is free.
    if (atTo && !atFrom) return RenamePlace::to;
    return atFrom && !atTo ? RenamePlace::from : RenamePlace::gone;
}

RenameMoves::RenameMoves(std::vector<PlannedRename> renames, FileOperations& fileOps)
    : renames_(std::move(renames)), places_(renames_.size(), RenamePlace::from), fileOps_(fileOps) {}

RenameMoves RenameMoves::resumed(std::vector<PlannedRename> renames, FileOperations& fileOps) {
    RenameMoves moves(std::move(renames), fileOps);
    std::ranges::transform(moves.renames_, moves.places_.begin(), placeOf);
    return moves;
}

std::exception_ptr RenameMoves::run(AfterProblem afterProblem, const std::function<void()>& afterMove) {
    problem_ = nullptr;
    if (pass(RenamePlace::from, afterProblem, afterMove)) pass(RenamePlace::parked, afterProblem, afterMove);
    return std::exchange(problem_, nullptr);
}

RenameMoves RenameMoves::back() const {
    RenameMoves moves(reversed(renames_), fileOps_);
    std::ranges::transform(places_, moves.places_.begin(), [](RenamePlace place) {
        if (place == RenamePlace::from) return RenamePlace::to;
        return place == RenamePlace::to ? RenamePlace::from : place;
    });
    return moves;
}

std::size_t RenameMoves::count(RenamePlace place) const {
    return static_cast<std::size_t>(std::ranges::count(places_, place));
}

/// Moves on all that stand at the place; answers whether the next pass may follow.
bool RenameMoves::pass(RenamePlace place, AfterProblem afterProblem, const std::function<void()>& afterMove) {
    for (std::size_t i = 0; i < renames_.size(); ++i) {
        if (places_[i] != place) continue;
        const PlannedRename& rename = renames_[i];
        const bool waits = place == RenamePlace::from && rename.parked;
        const RenamePlace next = waits ? RenamePlace::parked : RenamePlace::to;
        try {
            fileOps_.move(pathAt(rename, place), pathAt(rename, next));
        } catch (const std::exception&) {
            if (happened(rename, place, next)) {
                places_[i] = next;
                continue;
            }
            if (!problem_) {
                problem_ = std::current_exception();
                firstProblem_ = i;
            }
            if (afterProblem == AfterProblem::stop) return false;
            continue;
        }
        places_[i] = next;
        if (afterMove) afterMove();
    }
    return true;
}

}  // namespace tamble
