#pragma once

#include <TambleCore/Jobs/JobProgress.h>

#include <chrono>
#include <cstddef>
#include <mutex>
#include <unordered_map>
#include <vector>

namespace tamble {

/// Makes one stream of progress messages of what many threads report about their items. Messages of items in
/// flight are sent at most every 0.1 s; the end of an item always is. Thread-safe; sends one message at a
/// time.
class ProgressTracker {
  public:
    ProgressTracker(int total, ProgressCallback send);

    /// The fraction is held within 0…1; ignored after the item's end.
    void update(std::size_t index, double fraction);
    void finish(std::size_t index);

    /// The saving phase has begun, is that many items far, or is over.
    void saving(int completed);
    void finishJob();

    static constexpr std::chrono::milliseconds shortestPause{100};

  private:
    using Clock = std::chrono::steady_clock;
    void sendProcessing(Clock::time_point now);
    void sendNow(const JobProgress& progress) const;

    std::mutex lock_;
    std::unordered_map<std::size_t, double> partials_;
    int completed_ = 0;
    /// By index of the item.
    std::vector<bool> isFinished_;
    Clock::time_point lastSent_;
    const int total_;
    const ProgressCallback send_;
};

}  // namespace tamble
