#pragma once

#include <TambleCore/Jobs/JobProgress.h>

#include <optional>
#include <string>

namespace tamble {

/// What the progress line tells.
struct ProgressState {
    JobProgress progress;
    /// The name of the file that was started last, already safe to show; empty when it is not known.
    std::string currentName = {};
    std::optional<double> secondsLeft = {};
};

/// The line in its three differently coloured pieces, together at most as wide as was asked for.
struct ProgressLine {
    std::string filled;
    std::string unfilled;
    std::string text;
};

/// What there is no room for is left out: first the name, then the time, then the bar.
ProgressLine progressLine(const ProgressState& state, std::size_t width);

}  // namespace tamble
