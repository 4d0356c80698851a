#pragma once

#include <Tamble/Desktop/App/AppWindow.h>
#include <Tamble/Desktop/Gallery/SampleFiles.h>

#include <functional>

namespace tamble::gallery {

/// The window with somebody who uses it.
class Stage {
  public:
    Stage(AppWindow& window, SampleFiles samples) : window_(window), samples_(std::move(samples)) {}

    App& app() { return window_.app(); }
    QQuickWindow& window() { return *window_.window(); }
    const SampleFiles& samples() const { return samples_; }

    /// Goes on with the window's work until the condition holds; throws std::runtime_error when it never
    /// does.
    void until(const std::function<bool()>& condition);
    /// Until pictures and estimates are there and nothing comes in any more; for a while at most.
    void settle();

    void drop(const std::filesystem::path& item);
    void openTool(const char* tool, const std::filesystem::path& item);
    /// Starts the job of the open tool, and waits for its end.
    void finishJob();
    /// Starts the job of the open tool, and waits until it is well on its way.
    void beginJob();

  private:
    bool isSettled();

    AppWindow& window_;
    SampleFiles samples_;
};

}  // namespace tamble::gallery
