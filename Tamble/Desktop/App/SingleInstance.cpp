#include <Tamble/Desktop/App/SingleInstance.h>

#include <QDataStream>
#include <QDir>
#include <QLocalSocket>
#include <QStandardPaths>

namespace tamble {
namespace {

constexpr int patience = 2000;
/// File names are at most 4096 bytes long; so many of them fit.
constexpr qint64 longestMessage = 64 << 20;

}  // namespace

SingleInstance::SingleInstance(QString name, QObject* parent)
    : QObject(parent), name_(std::move(name)), server_(this) {
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&server_, &QLocalServer::newConnection, this, &SingleInstance::receive);
}

QString SingleInstance::defaultName() {
    // The user's own folder: nobody else can listen or be listened to there.
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    return QDir(folder).filePath(QStringLiteral("tamble-desktop"));
}

bool SingleInstance::handOver(const QList<QUrl>& urls) const {
    QLocalSocket socket;
    socket.connectToServer(name_);
    if (!socket.waitForConnected(patience)) return false;
    QByteArray message;
    QDataStream stream(&message, QIODevice::WriteOnly);
    QList<QByteArray> encoded;
    for (const QUrl& url : urls) encoded << url.toEncoded();
    stream << encoded;
    socket.write(message);
    if (!socket.waitForBytesWritten(patience)) return false;
    socket.disconnectFromServer();
    return socket.state() == QLocalSocket::UnconnectedState || socket.waitForDisconnected(patience);
}

void SingleInstance::listen() {
    if (server_.listen(name_)) return;
    // The socket of a program that died.
    QLocalServer::removeServer(name_);
    server_.listen(name_);
}

void SingleInstance::receive() {
    while (QLocalSocket* socket = server_.nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, this, [this, socket] {
            QList<QByteArray> encoded;
            if (socket->bytesAvailable() <= longestMessage) {
                QDataStream stream(socket);
                stream >> encoded;
            }
            QList<QUrl> urls;
            for (const QByteArray& url : encoded) urls << QUrl::fromEncoded(url);
            socket->deleteLater();
            emit arrived(urls);
        });
    }
}

}  // namespace tamble
