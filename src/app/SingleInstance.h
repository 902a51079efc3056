#pragma once

#include <QDeadlineTimer>
#include <QLocalServer>
#include <QObject>
#include <QString>
#include <QStringList>

#include <optional>

QT_FORWARD_DECLARE_CLASS(QLocalSocket)

namespace ridelog {

/// What a start of the program is asked for.
struct StartRequest {
    QStringList paths; ///< of files
    bool simulatedDevice = false;
};

/// One program per user and settings: a second start hands what it is asked for to the first.
///
/// Who has locked a file beside the settings is the first. The system unlocks it when the program has ended,
/// in whatever way, and nobody else may touch the socket, over which starts are handed over. A first program
/// that is busy or stopped stays the first.
class SingleInstance : public QObject {
    Q_OBJECT

public:
    /// For programs with the settings in this file.
    explicit SingleInstance(const QString& settingsPath, QObject* parent = nullptr);
    /// Lets the next start be the first.
    ~SingleInstance() override;

    enum class Role {
        first,     ///< starts are told from now on, from the event loop
        later,     ///< the first has taken the request
        unanswered ///< there is a first, but it does not answer for half a minute; nothing was handed over
    };
    /// Where there can be no lock, as in a folder that is not to be written, every start is a first one.
    Role begin(const StartRequest& request);

Q_SIGNALS:
    /// Another start; its paths are absolute.
    void started(const ridelog::StartRequest& request);

private:
    /// None, or why there can be no lock.
    std::optional<QString> takeLock();
    void listen();
    bool handOver(const StartRequest& request, const QDeadlineTimer& deadline) const;
    void receive(QLocalSocket& socket);

    QString _lockPath;
    int _lock = -1; ///< a descriptor of that file
    bool _isLocked = false;
    int _socketFolder = -1; ///< the folder of the socket
    QString _socketName;
    QLocalServer _server;
};

} // namespace ridelog
