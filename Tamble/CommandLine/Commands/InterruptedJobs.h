#pragma once

namespace tamble {

/// Puts jobs during whose saving the program died into the activity log, and says on standard error how to
/// undo them. To be called before a job starts and before the log is shown.
void announceInterruptedJobs();

}  // namespace tamble
