#pragma once

namespace tamble::gallery {

/// Fills the activity log with jobs of the last days.
void fillActivityLog();

/// Leaves behind what a job does whose program dies when it has saved, before it is in the log.
void leaveInterruptedJob();

}  // namespace tamble::gallery
