#pragma once

#include <Tamble/Desktop/App/AppWindow.h>

#include <QQuickItem>
#include <QQuickWindow>

#include <TambleCoreTests/TestFolder.h>
#include <gtest/gtest.h>

namespace tamble {

/// The real window with folders of its own, and somebody with a mouse and a keyboard.
class WindowTest : public testing::Test {
  protected:
    WindowTest();
    ~WindowTest() override;

    /// As when the program starts.
    void open();
    /// As when it ends.
    void close();
    App& app() { return window_->app(); }
    QQuickWindow& window() { return *window_->window(); }
    Navigator::Screen screen() { return app().navigator()->screen(); }

    const TestFolder& folder() const { return folder_; }
    /// A JPEG below files() whose picture depends on its name.
    std::filesystem::path addPhoto(const std::filesystem::path& name, int width = 48, int height = 32) const;
    std::map<std::string, std::string> files() const { return snapshot(folder_.files()); }

    /// Lets the window work until the condition holds; answers whether it came so far.
    static bool waitFor(const std::function<bool()>& condition);
    bool waitForScreen(Navigator::Screen wanted);

    /// What is shown under that name, which may go on after a comma; null when nothing is.
    QQuickItem* find(const QString& name);
    bool isShown(const QString& name) { return find(name) != nullptr; }
    /// Waits for it.
    bool comesUp(const QString& name);
    /// Waits for it, and presses the mouse in its middle.
    void click(const QString& name, Qt::KeyboardModifiers modifiers = {});
    /// Goes to it by the Tab key; answers whether it came there.
    bool tabTo(const QString& name);
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
    void type(const char* text);
    /// Drags it into the window and lets go.
    void drop(const std::filesystem::path& item);

    /// Drops the item and opens the tool by its card.
    void openTool(const QString& title, const std::filesystem::path& item);
    void start() { click(app().tool()->startText()); }

  private:
    TestFolder folder_;
    std::optional<AppWindow> window_;
};

}  // namespace tamble
