#pragma once

#include <functional>
#include <thread>

namespace tamble {

/// While it lives, Ctrl-C and requests to end (SIGINT, SIGTERM, SIGHUP) call a function instead of ending the
/// program, once for each, on a thread of its own. At most one lives at a time.
class StopSignals {
  public:
    explicit StopSignals(std::function<void()> onSignal);
    ~StopSignals();
    StopSignals(const StopSignals&) = delete;
    StopSignals& operator=(const StopSignals&) = delete;

  private:
    void listen() const;

    std::function<void()> onSignal_;
    int readEnd_ = -1;
    std::thread listener_;
};

}  // namespace tamble
