#pragma once

#include <Tamble/Model/ActivityStore.h>

namespace tamble {

/// Where the journals of running jobs are; see JournalFile.
std::filesystem::path journalFolder();

/// What became of a job during which its program died.
struct RecoveredJob {
    enum class Outcome {
        logged,        ///< it is in the activity log, from where it can be undone
        namesPutBack,  ///< its files have their old names again, and nothing is left of it
        namesNotBack,  ///< not all could be given their old names back; the next start tries it again
    };

    ActivityEntry entry;
    Outcome outcome = Outcome::logged;
    /// Where the files are that could not be given their old names back.
    std::vector<FilePath> stranded = {};
};

/// Finds the journals of programs that died while a job saved. A job that saved, or renamed all its files,
/// goes into the activity log; the files of one that was still renaming get their old names back. Answers
/// these jobs, the oldest first. Loads the store when there is any. Never throws; what does not work now is
/// tried again at the next start.
std::vector<RecoveredJob> recoverInterruptedJobs(ActivityStore& store, FileOperations& fileOps,
                                                 const std::filesystem::path& folder = journalFolder());

}  // namespace tamble
