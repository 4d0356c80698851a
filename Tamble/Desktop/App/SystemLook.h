#pragma once

#include <QDBusVariant>
#include <QObject>
#include <QtQmlIntegration>

namespace tamble {

/// What the desktop asks of every window: dark or light, and how much may move. Told by the desktop portal
/// (org.freedesktop.portal.Settings); light and moving where there is none.
class SystemLook : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("It belongs to the application.")
    Q_PROPERTY(bool isDark READ isDark NOTIFY changed)
    Q_PROPERTY(bool reducesMotion READ reducesMotion NOTIFY changed)

  public:
    explicit SystemLook(QObject* parent = nullptr);
    /// Asks the portal, without waiting for its answer.
    void ask();

    bool isDark() const { return isDark_; }
    bool reducesMotion() const { return reducesMotion_; }

  signals:
    void changed();

  private slots:
    void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);

  private:
    void askFor(const QString& group, const QString& key);
    void take(const QString& group, const QString& key, const QVariant& value);

    bool isDark_ = false;
    bool reducesMotion_ = false;
};

}  // namespace tamble
