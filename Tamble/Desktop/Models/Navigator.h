#pragma once

#include <QObject>
#include <QtQmlIntegration>
#include <vector>

namespace tamble {

/// Which screen is shown, and the way back.
class Navigator : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("It belongs to the application.")
    Q_PROPERTY(Screen screen READ screen NOTIFY changed)
    Q_PROPERTY(QString category READ category NOTIFY changed)
    Q_PROPERTY(bool canGoBack READ canGoBack NOTIFY changed)

  public:
    enum Screen { Home, Drop, Category, Tool, Work, Done, Activity, Settings };
    Q_ENUM(Screen)

    using QObject::QObject;

    Screen screen() const { return place_.screen; }
    /// Of the Category screen; empty for all tools.
    QString category() const { return place_.category; }
    bool canGoBack() const { return !way_.empty(); }

    Q_INVOKABLE void open(tamble::Navigator::Screen screen, const QString& category = {});
    /// In the place of the screen that is shown: back leads where it led from there.
    void replace(Screen screen);
    Q_INVOKABLE void back();

  signals:
    void changed();

  private:
    struct Place {
        Screen screen = Home;
        QString category;
        friend bool operator==(const Place&, const Place&) = default;
    };

    void show(Place place);

    Place place_;
    std::vector<Place> way_;
};

}  // namespace tamble
