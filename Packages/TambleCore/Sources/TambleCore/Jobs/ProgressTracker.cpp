#include <TambleCore/Jobs/ProgressTracker.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tamble {

ProgressTracker::ProgressTracker(int total, ProgressCallback send)
    : isFinished_(static_cast<std::size_t>(total)), total_(total), send_(std::move(send)) {
    const std::scoped_lock guard(lock_);
    sendProcessing(Clock::now());
}

void ProgressTracker::update(std::size_t index, double fraction) {
    const std::scoped_lock guard(lock_);
    if (isFinished_.at(index)) return;
    partials_[index] = std::isnan(fraction) ? 0 : std::clamp(fraction, 0.0, 1.0);
    if (const auto now = Clock::now(); now - lastSent_ >= shortestPause) sendProcessing(now);
}

void ProgressTracker::finish(std::size_t index) {
    const std::scoped_lock guard(lock_);
    if (isFinished_.at(index)) return;
    isFinished_[index] = true;
    partials_.erase(index);
    ++completed_;
    sendProcessing(Clock::now());
}

void ProgressTracker::saving(int completed) {
    const std::scoped_lock guard(lock_);
    const auto now = Clock::now();
    if (completed != 0 && completed != total_ && now - lastSent_ < shortestPause) return;
    lastSent_ = now;
    sendNow({.phase = JobProgress::Phase::saving, .completed = completed, .total = total_, .partial = 0});
}

void ProgressTracker::finishJob() {
    const std::scoped_lock guard(lock_);
    sendNow({.phase = JobProgress::Phase::finished, .completed = total_, .total = total_, .partial = 0});
}

void ProgressTracker::sendProcessing(Clock::time_point now) {
    lastSent_ = now;
    double partial = 0;
    for (const auto& [index, fraction] : partials_) partial += fraction;
    sendNow({.phase = JobProgress::Phase::processing,
             .completed = completed_,
             .total = total_,
             .partial = partial});
}

void ProgressTracker::sendNow(const JobProgress& progress) const {
    if (!send_) return;
    try {
        send_(progress);
    } catch (...) {
        // Whoever watches a job cannot stop it.
    }
}

}  // namespace tamble
