#include <Tamble/CommandLine/Progress/ProgressLine.h>
#include <Tamble/CommandLine/Text/Amounts.h>
#include <Tamble/CommandLine/Text/SafeText.h>

#include <algorithm>
#include <cmath>

#include <fmt/format.h>

namespace tamble {
namespace {

constexpr std::size_t widestBar = 24;
constexpr std::size_t narrowestBar = 6;
constexpr std::size_t narrowestName = 8;
constexpr std::size_t gap = 2;

double fraction(const JobProgress& progress) {
    if (progress.total <= 0) return 0;
    return std::clamp((progress.completed + progress.partial) / progress.total, 0.0, 1.0);
}

std::string repeated(std::string_view piece, std::size_t count) {
    std::string result;
    for (std::size_t i = 0; i < count; ++i) result += piece;
    return result;
}

std::string countPart(const JobProgress& progress) {
    if (progress.phase != JobProgress::Phase::processing) return "Saving";
    return fmt::format("{} of {}", progress.completed, progress.total);
}

}  // namespace

ProgressLine progressLine(const ProgressState& state, std::size_t width) {
    const bool isProcessing = state.progress.phase == JobProgress::Phase::processing;
    const std::string count = shortened(countPart(state.progress), width);
    std::size_t left = width - displayWidth(count);

    const std::size_t bar = left >= narrowestBar + gap ? std::clamp(left / 3, narrowestBar, widestBar) : 0;
    if (bar > 0) left -= bar + gap;

    std::string time;
    if (isProcessing && state.secondsLeft) time = fmt::format("{} left", durationText(*state.secondsLeft));
    if (displayWidth(time) + gap > left) time.clear();
    if (!time.empty()) left -= displayWidth(time) + gap;

    std::string name;
    if (isProcessing && left >= narrowestName + gap) name = shortened(state.currentName, left - gap);

    ProgressLine line;
    const auto filled =
        static_cast<std::size_t>(std::floor(fraction(state.progress) * static_cast<double>(bar)));
    line.filled = repeated("━", filled);
    line.unfilled = repeated("─", bar - filled);
    const std::string between(gap, ' ');
    line.text = (bar > 0 ? between : "") + count + (name.empty() ? "" : between + name) +
                (time.empty() ? "" : between + time);
    return line;
}

}  // namespace tamble
