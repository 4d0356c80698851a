#include <Tamble/CommandLine/Progress/ProgressDisplay.h>

namespace tamble {
namespace {

constexpr std::string_view eraseLine = "\r\x1b[K";
/// Before that an estimate of the time jumps about, and a short job should not flash.
constexpr std::chrono::milliseconds settlingTime{700};
/// Of the whole job: less says nothing yet about the speed.
constexpr double settledShare = 0.05;
/// More often nobody can read it, and small files finish by the thousand.
constexpr std::chrono::milliseconds redrawTime{40};

}  // namespace

ProgressDisplay::ProgressDisplay(Terminal terminal) : terminal_(terminal) {}

ProgressDisplay::~ProgressDisplay() {
    erase();
}

void ProgressDisplay::update(const JobProgress& progress) {
    const std::lock_guard lock(mutex_);
    const bool isSamePhase = state_.progress.phase == progress.phase;
    state_.progress = progress;
    if (isDrawn_ && isSamePhase && Clock::now() - drawn_ < redrawTime) return;
    draw();
}

void ProgressDisplay::startedFile(const std::string& safeName) {
    const std::lock_guard lock(mutex_);
    state_.currentName = safeName;
}

void ProgressDisplay::say(const std::string& line) {
    const std::lock_guard lock(mutex_);
    erase();
    printError(line + '\n');
    draw();
}

JobProgress::Phase ProgressDisplay::phase() const {
    const std::lock_guard lock(mutex_);
    return state_.progress.phase;
}

std::optional<double> ProgressDisplay::secondsLeft() const {
    const auto& progress = state_.progress;
    const std::chrono::duration<double> elapsed = Clock::now() - start_;
    const double done = progress.completed + progress.partial;
    if (elapsed < settlingTime || done < settledShare * progress.total) return std::nullopt;
    return elapsed.count() / done * (progress.total - done);
}

void ProgressDisplay::draw() {
    if (!terminal_.isLive()) return;
    if (state_.progress.phase == JobProgress::Phase::finished) return erase();
    state_.secondsLeft = secondsLeft();
    // The last cell stays free: some terminals wrap as soon as it is filled.
    const std::size_t width = terminal_.width();
    const ProgressLine line = progressLine(state_, width > 1 ? width - 1 : 1);
    std::string text(eraseLine);
    if (!line.filled.empty()) text += terminal_.strong(line.filled);
    if (!line.unfilled.empty()) text += terminal_.faint(line.unfilled);
    printError(text + line.text);
    isDrawn_ = true;
    drawn_ = Clock::now();
}

void ProgressDisplay::erase() {
    if (isDrawn_) printError(eraseLine);
    isDrawn_ = false;
}

}  // namespace tamble
