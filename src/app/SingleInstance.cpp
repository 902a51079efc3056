#include "app/SingleInstance.h"

#include <QDataStream>
#include <QFileInfo>
#include <QLocalSocket>

#include <chrono>

namespace ridelog {
namespace {

/// Another program that does not answer within this time, in milliseconds, is stuck.
constexpr int patience = 3000;
constexpr qint64 largestMessage = 1024 * 1024;

} // namespace

SingleInstance::SingleInstance(const QString& name, QObject* parent) : QObject(parent), _name(name)
{
    connect(&_server, &QLocalServer::newConnection, this, &SingleInstance::receive);
}

bool SingleInstance::handOver(const QStringList& paths) const
{
    QLocalSocket socket;
    socket.connectToServer(_name);
    if (!socket.waitForConnected(patience))
        return false;
    QStringList absolute;
    for (const auto& path : paths)
        absolute << QFileInfo(path).absoluteFilePath();
    QDataStream stream(&socket);
    stream << absolute;
    if (!socket.waitForBytesWritten(patience))
        return false;
    // It answers when it has taken them.
    return socket.waitForReadyRead(patience) && socket.readAll() == "ok";
}

void SingleInstance::listen()
{
    _server.setSocketOptions(QLocalServer::UserAccessOption);
    // What a killed program left behind answers nobody.
    QLocalServer::removeServer(_name);
    _server.listen(_name);
}

void SingleInstance::receive()
{
    auto* socket = _server.nextPendingConnection();
    connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
    connect(socket, &QLocalSocket::readyRead, this, [this, socket] {
        if (socket->bytesAvailable() > largestMessage) {
            socket->abort();
            return;
        }
        QDataStream stream(socket);
        stream.startTransaction();
        QStringList paths;
        stream >> paths;
        if (!stream.commitTransaction())
            return;
        socket->write("ok");
        Q_EMIT started(paths);
    });
}

} // namespace ridelog
