#include "app/SingleInstance.h"

#include "platform/SystemCall.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocalSocket>
#include <QLoggingCategory>
#include <QStandardPaths>

#include <chrono>
#include <fcntl.h>
#include <sys/file.h>
#include <thread>
#include <unistd.h>

namespace ridelog {
namespace {

Q_LOGGING_CATEGORY(lcApp, "ridelog.app")

/// Even a first program that reads a large document from a slow disk answers within this time.
constexpr auto patience = std::chrono::seconds(30);
/// A first program that has just begun, or is about to end, has the lock and no socket.
constexpr auto nextTry = std::chrono::milliseconds(20);
constexpr mode_t onlyThisUser = 0600;
const QByteArray taken("1");

/// The builds of two programs that meet may differ.
constexpr auto streamVersion = QDataStream::Qt_6_4;

QByteArray encoded(const StartRequest& request)
{
    QStringList absolute;
    for (const auto& path : request.paths)
        absolute << QFileInfo(path).absoluteFilePath();
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(streamVersion);
    stream << absolute << request.simulatedDevice;
    return bytes;
}

/// The folder of this user's sockets, by a name that is short: that of a socket has 107 bytes at most.
QString shortName(int folder)
{
    return QStringLiteral("/proc/self/fd/%1/").arg(folder);
}

int openFolder(const QString& path)
{
    return path.isEmpty() ? -1
                          : ::open(QFile::encodeName(path).constData(), O_PATH | O_DIRECTORY | O_CLOEXEC);
}

} // namespace

SingleInstance::SingleInstance(const QString& settingsPath, QObject* parent)
    : QObject(parent),
      _lockPath(settingsPath + QStringLiteral(".instance")),
      _socketFolder(openFolder(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation)))
{
    const auto hash = QCryptographicHash::hash(settingsPath.toUtf8(), QCryptographicHash::Sha1);
    _socketName = shortName(_socketFolder) +
                  QStringLiteral("ridelog-%1").arg(QString::fromLatin1(hash.toHex().left(16)));
    connect(&_server, &QLocalServer::newConnection, this, [this] {
        while (auto* socket = _server.nextPendingConnection()) {
            connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
            connect(socket, &QLocalSocket::readyRead, this, [this, socket] { receive(*socket); });
        }
    });
}

SingleInstance::~SingleInstance()
{
    // The socket goes while it is still ours.
    _server.close();
    for (const int descriptor : {_socketFolder, _lock}) {
        if (descriptor >= 0)
            ::close(descriptor);
    }
}

SingleInstance::Role SingleInstance::begin(const StartRequest& request)
{
    const QDeadlineTimer deadline(patience);
    for (;;) {
        if (const auto error = takeLock()) {
            qCWarning(lcApp, "A second start cannot be told from the first: %s", qUtf8Printable(*error));
            return Role::first;
        }
        if (_isLocked) {
            listen();
            return Role::first;
        }
        if (handOver(request, deadline))
            return Role::later;
        if (deadline.hasExpired())
            return Role::unanswered;
        std::this_thread::sleep_for(nextTry);
    }
}

std::optional<QString> SingleInstance::takeLock()
{
    if (_lock < 0) {
        QDir().mkpath(QFileInfo(_lockPath).path());
        _lock = ::open(QFile::encodeName(_lockPath).constData(), O_RDWR | O_CREAT | O_CLOEXEC, onlyThisUser);
    }
    _isLocked = _lock >= 0 && uninterrupted([this] { return ::flock(_lock, LOCK_EX | LOCK_NB); }) == 0;
    if (_isLocked || (_lock >= 0 && errno == EWOULDBLOCK))
        return std::nullopt;
    return _lockPath + QStringLiteral(": ") + systemError();
}

void SingleInstance::listen()
{
    _server.setSocketOptions(QLocalServer::UserAccessOption);
    // What a killed program left behind answers nobody.
    QLocalServer::removeServer(_socketName);
    if (!_server.listen(_socketName))
        qCWarning(lcApp, "A second start cannot hand over its files: %s",
                  qUtf8Printable(_server.errorString()));
}

bool SingleInstance::handOver(const StartRequest& request, const QDeadlineTimer& deadline) const
{
    const auto left = [&deadline] { return static_cast<int>(deadline.remainingTime()); };
    QLocalSocket socket;
    socket.connectToServer(_socketName);
    if (!socket.waitForConnected(left()))
        return false;
    socket.write(encoded(request));
    while (socket.bytesToWrite() > 0) {
        if (!socket.waitForBytesWritten(left()))
            return false;
    }
    return socket.waitForReadyRead(left()) && socket.readAll() == taken;
}

void SingleInstance::receive(QLocalSocket& socket)
{
    QDataStream stream(&socket);
    stream.setVersion(streamVersion);
    stream.startTransaction();
    StartRequest request;
    stream >> request.paths >> request.simulatedDevice;
    if (!stream.commitTransaction())
        return;
    socket.write(taken);
    // Who waits for the answer gets it now: what follows may take long. Who has given up waiting has said so.
    if (!socket.flush())
        return;
    QMetaObject::invokeMethod(
        this, [this, request] { Q_EMIT started(request); }, Qt::QueuedConnection);
}

} // namespace ridelog
