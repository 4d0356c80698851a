#pragma once

#include <TambleCore/Jobs/Isolation/WorkerPool.h>

#include <chrono>
#include <optional>

namespace tamble {

class WorkerProcess;

/// One request to a worker, until its last reply: passes progress on, hands a stop request down, and ends a
/// worker that hangs.
class Conversation {
  public:
    Conversation(WorkerProcess& worker, const WorkerLimits& limits, const WorkContext& context);

    /// Waits for what a worker says when it has started. Throws WorkerLost.
    reply::Ready greeting();
    /// Throws WorkerLost, and Cancelled when the worker had to be killed after a stop request.
    WorkerReply about(const WorkerRequest& request);

  private:
    using Clock = std::chrono::steady_clock;

    WorkerReply nextReply();
    void obeyStop();
    void watchWork();
    void markAlive();
    [[noreturn]] void lose(std::string_view why);

    WorkerProcess& worker_;
    const WorkerLimits& limits_;
    const WorkContext& context_;
    std::optional<Clock::time_point> stopAskedAt_;
    Clock::time_point lastSign_;
    std::chrono::nanoseconds processorAtLastSign_{};
    std::chrono::nanoseconds processorAtLastReport_{};
};

}  // namespace tamble
