#pragma once

#include <functional>

namespace tamble {

/// How far a job is; a view shows (completed + partial) / total.
struct JobProgress {
    enum class Phase { processing, saving, finished };

    Phase phase = Phase::processing;
    /// Items finished processing; in the saving phase, items dealt with in that phase.
    int completed = 0;
    int total = 0;
    /// The sum of the fractions of the items still in flight.
    double partial = 0;
};

using ProgressCallback = std::function<void(const JobProgress&)>;

}  // namespace tamble
