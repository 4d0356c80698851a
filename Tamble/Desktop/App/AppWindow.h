#pragma once

#include <Tamble/Desktop/App/App.h>

#include <QQmlApplicationEngine>

class QQuickWindow;

namespace tamble {

/// The window with all that stands behind it. One at a time.
class AppWindow {
  public:
    /// Opens it. Reads what the user's folders hold.
    AppWindow();

    App& app() { return app_; }
    /// Null when it could not be loaded.
    QQuickWindow* window() const;

  private:
    App app_{nullptr};
    QQmlApplicationEngine engine_;
};

}  // namespace tamble
