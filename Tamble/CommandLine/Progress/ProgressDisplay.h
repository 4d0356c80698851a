#pragma once

#include <Tamble/CommandLine/Progress/ProgressLine.h>
#include <Tamble/CommandLine/Text/Terminal.h>

#include <chrono>
#include <mutex>
#include <string>

namespace tamble {

/// Draws a job's progress as one line on standard error, redrawn in place; silent where nobody watches. Its
/// functions may be called from any thread.
class ProgressDisplay {
  public:
    explicit ProgressDisplay(Terminal terminal);
    ~ProgressDisplay();
    ProgressDisplay(const ProgressDisplay&) = delete;
    ProgressDisplay& operator=(const ProgressDisplay&) = delete;

    void update(const JobProgress& progress);
    /// A file was started.
    void startedFile(const std::string& safeName);
    /// Writes a line of its own above the progress, also where nobody watches.
    void say(const std::string& line);
    JobProgress::Phase phase() const;

  private:
    using Clock = std::chrono::steady_clock;

    std::optional<double> secondsLeft() const;
    void draw();
    void erase();

    const Terminal terminal_;
    const Clock::time_point start_ = Clock::now();
    mutable std::mutex mutex_;
    ProgressState state_;
    bool isDrawn_ = false;
    Clock::time_point drawn_;
};

}  // namespace tamble
