#include "WindowTest.h"

#include <Tamble/Desktop/Support/Texts.h>

#include <QAccessible>
#include <QDragEnterEvent>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QTest>

namespace tamble {
namespace {

constexpr int patience = 60'000;
constexpr int mostStops = 100;

QString nameOf(QQuickItem* item) {
    const QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(item);
    const QString name = accessible == nullptr ? QString() : accessible->text(QAccessible::Name);
    return name.isEmpty() ? item->property("text").toString() : name;
}

bool isCalled(QQuickItem* item, const QString& name) {
    const QString own = nameOf(item);
    return own == name || own.startsWith(name + QStringLiteral(", "));
}

/// Whether people can press it or type into it; what only names such a thing is called the same.
bool isControl(const QQuickItem& item) {
    return item.inherits("QQuickAbstractButton") || item.inherits("QQuickComboBox") ||
           item.inherits("QQuickTextInput") || item.inherits("QQuickTextEdit");
}

void collect(QQuickItem* item, const QString& name, std::vector<QQuickItem*>& found) {
    if (!item->isVisible() || item->opacity() == 0) return;
    if (item->width() > 0 && isCalled(item, name)) found.push_back(item);
    for (QQuickItem* child : item->childItems()) collect(child, name, found);
}

QPoint middleOf(const QQuickItem& item) {
    return item.mapToScene(QPointF(item.width() / 2, item.height() / 2)).toPoint();
}

}  // namespace

WindowTest::WindowTest() {
    ::setenv("HOME", folder_.home().c_str(), 1);
    std::filesystem::create_directories(folder_.home());
}

WindowTest::~WindowTest() {
    close();
}

void WindowTest::close() {
    window_.reset();
    // What was still on its way to the window goes, and objects that were asked to go later.
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void WindowTest::open() {
    window_.emplace();
    ASSERT_NE(window_->window(), nullptr);
    window().resize(1280, 900);
    app().begin();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window()));
    window().requestActivate();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    ASSERT_TRUE(waitFor([this] { return app().activity()->isLoaded(); }));
}

std::filesystem::path WindowTest::addPhoto(const std::filesystem::path& name, int width, int height) const {
    const auto path = folder_.files() / name;
    std::filesystem::create_directories(path.parent_path());
    const auto seed = static_cast<unsigned>(std::hash<std::string>()(name.native()));
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const auto at = static_cast<unsigned>(x * 7 + y * 13);
            image.setPixel(x, y,
                           qRgb(static_cast<int>(at % 256), static_cast<int>((at ^ seed) % 256), y % 256));
        }
    }
    EXPECT_TRUE(image.save(QString::fromStdString(path.native())));
    return path;
}

bool WindowTest::waitFor(const std::function<bool()>& condition) {
    return QTest::qWaitFor(condition, patience);
}

bool WindowTest::waitForScreen(Navigator::Screen wanted) {
    return waitFor([&] { return screen() == wanted; });
}

QQuickItem* WindowTest::find(const QString& name) {
    std::vector<QQuickItem*> found;
    // Popups stand above everything else, and last in the list.
    const auto items = window().contentItem()->childItems();
    for (auto item = items.rbegin(); item != items.rend(); ++item) collect(*item, name, found);
    if (found.empty()) return nullptr;
    const auto control = std::ranges::find_if(found, [](const QQuickItem* item) { return isControl(*item); });
    return control == found.end() ? found.front() : *control;
}

bool WindowTest::comesUp(const QString& name) {
    return waitFor([&] { return find(name) != nullptr; });
}

void WindowTest::click(const QString& name, Qt::KeyboardModifiers modifiers) {
    const auto isReady = [&] {
        const QQuickItem* item = find(name);
        return item != nullptr && item->isEnabled();
    };
    ASSERT_TRUE(waitFor(isReady)) << name.toStdString();
    // Screens and popups come in from the side.
    QPoint before;
    ASSERT_TRUE(waitFor([&] {
        const QPoint now = find(name) == nullptr ? QPoint() : middleOf(*find(name));
        return !now.isNull() && now == std::exchange(before, now);
    }));
    ASSERT_TRUE(QRect(QPoint(), window().size()).contains(before)) << name.toStdString() << " is outside";
    QTest::mouseClick(&window(), Qt::LeftButton, modifiers, before);
}

bool WindowTest::tabTo(const QString& name) {
    for (int stop = 0; stop < mostStops; ++stop) {
        press(Qt::Key_Tab);
        QQuickItem* focused = window().activeFocusItem();
        if (focused != nullptr && isCalled(focused, name)) return true;
    }
    return false;
}

void WindowTest::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(&window(), key, modifiers);
}

void WindowTest::type(const char* text) {
    for (; *text != 0; ++text) QTest::keyClick(&window(), *text);
}

void WindowTest::drop(const std::filesystem::path& item) {
    QMimeData data;
    data.setUrls({urlOf(item)});
    const QPoint place(600, 300);
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&window(), &enter);
    ASSERT_TRUE(enter.isAccepted());
    QDragMoveEvent move(place + QPoint(9, 9), Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&window(), &move);
    QDropEvent let(place, Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&window(), &let);
    ASSERT_TRUE(let.isAccepted());
}

void WindowTest::openTool(const QString& title, const std::filesystem::path& item) {
    drop(item);
    ASSERT_TRUE(waitForScreen(Navigator::Drop));
    click(title);
    ASSERT_TRUE(waitForScreen(Navigator::Tool));
    ASSERT_TRUE(waitFor([this] { return app().tool()->canStart(); }));
}

}  // namespace tamble
