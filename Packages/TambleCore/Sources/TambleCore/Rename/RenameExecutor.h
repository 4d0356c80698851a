#pragma once

#include <TambleCore/Jobs/Journal/JobJournal.h>
#include <TambleCore/Platform/FileOperations.h>
#include <TambleCore/Rename/RenameItem.h>
#include <TambleCore/Support/Failure.h>

#include <functional>
#include <span>

namespace tamble {

/// Why nothing was renamed.
class RenameFailure : public Failure {
  public:
    using Failure::Failure;
    ~RenameFailure() override;
    RenameFailure(const RenameFailure&) = default;
    RenameFailure& operator=(const RenameFailure&) = default;

    /// The old name of the file that could not be renamed, if it was one.
    std::optional<FilePath> culprit = {};
    /// Files that could not be given their old names back, and where they are now.
    std::vector<RenamedItem> stranded = {};
};

/// Renames files in place, all at once or not at all.
namespace RenameExecutor {

/// Gives the items, none of which has a problem, their new names; those that have them already are passed
/// over. Names may be swapped and rotated among them, and change in letter case alone. `journal` may be null;
/// `report` is told the fraction of the moves that are made. Answers what undo needs. Throws RenameFailure;
/// then all have their old names, except for the stranded.
std::vector<RenamedItem> rename(std::span<const RenameItem> items, FileOperations& fileOps,
                                JobJournal* journal, const std::function<void(double)>& report = {});

}  // namespace RenameExecutor

}  // namespace tamble
