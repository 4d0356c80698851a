#pragma once

#include <Tamble/Model/ActivityStore.h>

namespace tamble {

/// Where the journals of running jobs are; see JournalFile.
std::filesystem::path journalFolder();

/// Finds the journals of programs that died while a job saved, puts each job into the activity log, from
/// where it can be undone, and answers these entries, the oldest first. Loads the store when there is any.
/// Never throws; what does not work now is tried again at the next start.
std::vector<ActivityEntry> recoverInterruptedJobs(ActivityStore& store, FileOperations& fileOps,
                                                  const std::filesystem::path& folder = journalFolder());

}  // namespace tamble
