#pragma once

#include <QLocalServer>
#include <QObject>
#include <QUrl>

namespace tamble {

/// One window a user: a program that is started second hands its files to the first and ends.
class SingleInstance : public QObject {
    Q_OBJECT

  public:
    /// `name` tells programs of one kind and one user apart from others.
    explicit SingleInstance(QString name, QObject* parent = nullptr);

    /// Hands the files to the program that runs already; false when there is none.
    bool handOver(const QList<QUrl>& urls) const;
    /// From now on this is the program that others hand their files to.
    void listen();

    static QString defaultName();

  signals:
    /// Another program was started; its files, perhaps none.
    void arrived(const QList<QUrl>& urls);

  private:
    void receive();

    QString name_;
    QLocalServer server_;
};

}  // namespace tamble
