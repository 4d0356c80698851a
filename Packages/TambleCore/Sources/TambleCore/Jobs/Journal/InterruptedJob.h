#pragma once

#include <TambleCore/Jobs/Journal/JournalLine.h>

namespace tamble {

/// A job whose program died while it saved.
struct InterruptedJob {
    journal::Job job;
    /// What the job had changed by then.
    UndoRecord undo;
    /// The files of a job that was renaming them in place, if not all have their new names: they are to get
    /// their old ones back, see RenameMoves.
    std::vector<PlannedRename> unfinishedRenames = {};

    /// What the journal tells, compared with what is on disk: of the step during which the program died the
    /// journal knows only that it was planned. Call it before anybody removes the staging folders. Empty when
    /// it had not begun. Lines that are damaged count as not written. Throws
    /// std::filesystem::filesystem_error when the journal cannot be read.
    static std::optional<InterruptedJob> read(const std::filesystem::path& journalFile);
};

}  // namespace tamble
