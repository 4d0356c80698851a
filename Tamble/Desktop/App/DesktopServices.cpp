#include <Tamble/Desktop/App/DesktopServices.h>
#include <Tamble/Desktop/Support/Texts.h>

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDesktopServices>
#include <QVariantMap>

namespace tamble::desktop {
namespace {

/// File managers open a window for each folder, and select each file.
constexpr std::size_t mostShown = 100;

void openFolder(const std::filesystem::path& folder) {
    QDesktopServices::openUrl(urlOf(folder));
}

}  // namespace

void showInFolder(std::span<const std::filesystem::path> files) {
    if (files.empty()) return;
    std::filesystem::path folder = files.front();
    // A folder's path ends in a slash.
    folder = folder.has_filename() ? folder.parent_path() : folder.parent_path().parent_path();
    QStringList urls;
    for (const auto& file : files.first(std::min(files.size(), mostShown))) {
        if (file.parent_path() == files.front().parent_path())
            urls << QString::fromUtf8(urlOf(file).toEncoded());
    }
    auto bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) return openFolder(folder);
    auto call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
    call << urls << QString();
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(call), qApp);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, qApp,
                     [folder](QDBusPendingCallWatcher* done) {
                         if (done->isError()) openFolder(folder);
                         done->deleteLater();
                     });
}

void notify(const QString& title, const QString& text) {
    auto call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("/org/freedesktop/Notifications"),
        QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("Notify"));
    const QVariantMap hints{{QStringLiteral("desktop-entry"), QStringLiteral("io.github.tamble.Tamble")}};
    constexpr int untilTheDesktopsOwnTime = -1;
    call << QStringLiteral("Tamble") << 0U << QStringLiteral("io.github.tamble.Tamble") << title
         << text.toHtmlEscaped() << QStringList() << hints << untilTheDesktopsOwnTime;
    auto bus = QDBusConnection::sessionBus();
    if (bus.isConnected()) bus.asyncCall(call);
}

}  // namespace tamble::desktop
