#include <Tamble/Desktop/Gallery/Stage.h>
#include <Tamble/Desktop/Support/Texts.h>

#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <stdexcept>

namespace tamble::gallery {
namespace {

constexpr int patience = 60'000;
constexpr int patienceForPictures = 20'000;
/// Longer than the window's pauses before it begins to work something out, and than its transitions.
constexpr int pause = 600;

/// Whether any picture that is shown is still on its way.
bool isLoading(const QQuickItem& item) {
    if (!item.isVisible()) return false;
    constexpr int loading = 2;
    if (item.inherits("QQuickImageBase") && item.property("status").toInt() == loading) return true;
    return std::ranges::any_of(item.childItems(), [](const QQuickItem* child) { return isLoading(*child); });
}

}  // namespace

void Stage::until(const std::function<bool()>& condition) {
    if (!QTest::qWaitFor(condition, patience)) throw std::runtime_error("the window never came there");
}

bool Stage::isSettled() {
    return !app().intake()->isBusy() && !app().tool()->forecast()->isEstimating() && !app().comparison()->isBusy() &&
           !isLoading(*window().contentItem());
}

void Stage::settle() {
    QTest::qWait(pause);
    if (QTest::qWaitFor([this] { return isSettled(); }, patienceForPictures)) QTest::qWait(pause);
}

void Stage::drop(const std::filesystem::path& item) {
    app().take({urlOf(item)});
    until([this] { return !app().intake()->isBusy(); });
}

void Stage::openTool(const char* tool, const std::filesystem::path& item) {
    drop(item);
    app().openTool(QString::fromUtf8(tool));
}

void Stage::finishJob() {
    app().startJob();
    until([this] { return !app().job()->isRunning(); });
}

void Stage::beginJob() {
    app().startJob();
    until([this] { return !app().job()->timeLeft().isEmpty() && app().job()->fraction() > 0.15; });
}

}  // namespace tamble::gallery
