#include "app/desktop/start/SingleInstance.h"

#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/StateFile.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QLocalSocket>

namespace kestrav::desktop
{

namespace
{

constexpr int kPatienceMs = 500;
constexpr qint64 kLongestMessage = 1 << 20;

// Two homes are two users, also under one login.
QString serverName()
{
    const QByteArray folder = toQt(stateFolder()).toUtf8();
    return QStringLiteral("kestrav-") +
           QString::fromLatin1(
               QCryptographicHash::hash(folder, QCryptographicHash::Sha256).toHex().left(16));
}

} // namespace

SingleInstance::SingleInstance(QObject* parent) : QObject(parent)
{
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&server_, &QLocalServer::newConnection, this, &SingleInstance::receive);
}

bool SingleInstance::handOver(const QStringList& files)
{
    QLocalSocket socket;
    socket.connectToServer(serverName());
    if (socket.waitForConnected(kPatienceMs)) {
        QDataStream stream(&socket);
        stream << files;
        return socket.waitForBytesWritten(kPatienceMs);
    }
    // What a killed program left behind keeps the name.
    QLocalServer::removeServer(serverName());
    server_.listen(serverName());
    return false;
}

void SingleInstance::receive()
{
    while (QLocalSocket* const socket = server_.nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] {
            if (socket->bytesAvailable() > kLongestMessage) {
                socket->abort();
                return;
            }
            QDataStream stream(socket);
            stream.startTransaction();
            QStringList files;
            stream >> files;
            if (stream.commitTransaction()) {
                socket->disconnectFromServer();
                // Questions about the files may stay open long after the socket is gone.
                QMetaObject::invokeMethod(
                    this, [this, files] { emit asked(files); }, Qt::QueuedConnection);
            }
        });
    }
}

} // namespace kestrav::desktop
