#pragma once

#include <TambleCore/Jobs/JobResult.h>

#include <variant>
#include <vector>

namespace tamble {

/// What saving one output does.
struct Placement {
    /// Where the output goes; a folder's path ends in "/".
    FilePath target;
    /// The original that goes to the Bin because the output takes its place.
    std::optional<FilePath> original = {};
    /// The file that goes to the Bin because it has the output's name.
    std::optional<FilePath> clashing = {};
};

/// What would become of one input.
using PlannedOutcome = std::variant<Placement, outcome::Skipped, outcome::Failed>;

/// Where a job would put its outputs if every item succeeded: one entry per input, in input order.
struct JobPlan {
    std::vector<PlannedOutcome> items;
};

}  // namespace tamble
