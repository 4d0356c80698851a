#pragma once

#include <TambleCore/Jobs/Renaming/PlannedRename.h>
#include <TambleCore/Platform/FileOperations.h>

#include <functional>

namespace tamble {

/// Where a file is on its way.
enum class RenamePlace { from, parked, to, gone };

/// What the disk shows of a rename that may have begun.
RenamePlace placeOf(const PlannedRename& rename);

/// Brings files to their new names in two passes: those whose way is free go there, the others wait under
/// their hidden names; then these follow. The same moves go on with renames that were interrupted, and
/// reversed() ones take back.
class RenameMoves {
  public:
    enum class AfterProblem { stop, goOn };

    /// All are still at their old names.
    RenameMoves(std::vector<PlannedRename> renames, FileOperations& fileOps);
    /// Those of renames that may have begun, wherever they are now.
    static RenameMoves resumed(std::vector<PlannedRename> renames, FileOperations& fileOps);

    /// Answers what a move threw first, if any did.
    std::exception_ptr run(AfterProblem afterProblem, const std::function<void()>& afterMove = {});
    /// Which file the last run() stopped at or had a problem with first.
    std::size_t firstProblem() const { return firstProblem_; }

    /// The way back from where the files are now.
    RenameMoves back() const;

    const std::vector<PlannedRename>& renames() const { return renames_; }
    RenamePlace place(std::size_t index) const { return places_[index]; }
    std::size_t count(RenamePlace place) const;

  private:
    bool pass(RenamePlace place, AfterProblem afterProblem, const std::function<void()>& afterMove);

    std::vector<PlannedRename> renames_;
    std::vector<RenamePlace> places_;
    FileOperations& fileOps_;
    std::exception_ptr problem_;
    std::size_t firstProblem_ = 0;
};

}  // namespace tamble
