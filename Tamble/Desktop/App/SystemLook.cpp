#include <Tamble/Desktop/App/SystemLook.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace tamble {
namespace {

const auto service = QStringLiteral("org.freedesktop.portal.Desktop");
const auto object = QStringLiteral("/org/freedesktop/portal/desktop");
const auto settings = QStringLiteral("org.freedesktop.portal.Settings");

const auto appearance = QStringLiteral("org.freedesktop.appearance");
const auto colorScheme = QStringLiteral("color-scheme");
const auto reducedMotion = QStringLiteral("reduced-motion");
const auto desktop = QStringLiteral("org.gnome.desktop.interface");
const auto animations = QStringLiteral("enable-animations");

/// A variant may be wrapped several times.
QVariant unwrapped(QVariant value) {
    while (value.canConvert<QDBusVariant>()) value = value.value<QDBusVariant>().variant();
    return value;
}

}  // namespace

SystemLook::SystemLook(QObject* parent) : QObject(parent) {}

void SystemLook::ask() {
    auto bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) return;
    bus.connect(service, object, settings, QStringLiteral("SettingChanged"), this,
                SLOT(settingChanged(QString, QString, QDBusVariant)));
    askFor(appearance, colorScheme);
    askFor(appearance, reducedMotion);
    askFor(desktop, animations);
}

void SystemLook::askFor(const QString& group, const QString& key) {
    auto call = QDBusMessage::createMethodCall(service, object, settings, QStringLiteral("Read"));
    call << group << key;
    auto* watcher = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this, group, key](QDBusPendingCallWatcher* done) {
                const QDBusPendingReply<QDBusVariant> reply = *done;
                if (reply.isValid()) take(group, key, unwrapped(QVariant::fromValue(reply.value())));
                done->deleteLater();
            });
}

void SystemLook::settingChanged(const QString& group, const QString& key, const QDBusVariant& value) {
    take(group, key, unwrapped(QVariant::fromValue(value)));
}

void SystemLook::take(const QString& group, const QString& key, const QVariant& value) {
    // The portal's values: 0 no preference, 1 dark, 2 light; motion likewise 1 for less.
    if (group == appearance && key == colorScheme) isDark_ = value.toUInt() == 1;
    if (group == appearance && key == reducedMotion) reducesMotion_ = value.toUInt() == 1;
    if (group == desktop && key == animations) reducesMotion_ = !value.toBool();
    emit changed();
}

}  // namespace tamble
