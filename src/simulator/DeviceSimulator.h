#pragma once

#include "simulator/Fault.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QObject>
#include <QSocketNotifier>
#include <QString>
#include <QTimer>

#include <chrono>
#include <memory>
#include <optional>

namespace ridelog {

class PortLink;
class PseudoTerminal;

/// A cycle computer on a port of its own: whenever somebody opens the port it sends its dump, at the pace of
/// the device's line, and then waits until the port is closed. Each opening gets the dump from its beginning.
///
/// It lives on the event loop of its thread and never holds it up, so that the port's user may be a part of
/// the same program. Bytes that are not read yet wait. Slots may stop it, but not delete it.
class DeviceSimulator : public QObject {
    Q_OBJECT

public:
    /// 9,600 bit/s with 10 bits a byte.
    static constexpr double bytesPerSecond = 960;

    struct Settings {
        QByteArray dump = {};
        double speed = 1;  ///< times as fast as the device; 0 as fast as the port's user reads
        QString link = {}; ///< a second name for the port that stays the same, or empty
        std::optional<Fault> fault = {};
        std::chrono::milliseconds lateBy = std::chrono::seconds(10); ///< what Fault::late waits
    };

    explicit DeviceSimulator(const Settings& settings, QObject* parent = nullptr);
    ~DeviceSimulator() override;

    /// Makes the port, and the link. None, or why there is none; it does not run then.
    std::optional<QString> start();
    /// Hangs up and takes port and link away.
    void stop();

    /// The port's own path; empty while it does not run.
    QString path() const;

Q_SIGNALS:
    // The port was opened, and closed. Bytes are those of this opening that the port has taken, read or not.

    void opened();
    void sent(qint64 bytes, qint64 allBytes);
    /// Nothing more comes in this opening.
    void finished(qint64 bytes);
    void closed(qint64 bytes);

    /// The port hung up, and the device came back with another. The link leads there already.
    void pathChanged(const QString& path);
    /// It came back with none; why, in words. It does not run any more.
    void failed(const QString& reason);

private:
    std::optional<QString> plugIn();
    void plugInAgain();
    void setTimer();
    void look();
    void beginOpening();
    void endOpening();
    void send();
    qsizetype dueBytes() const;

    const QByteArray _bytes;
    const double _speed;
    const std::optional<Fault> _fault;
    const std::chrono::milliseconds _delay;
    const QString _linkPath;

    std::unique_ptr<PseudoTerminal> _terminal; ///< none while it does not run
    std::unique_ptr<PortLink> _link;
    QTimer _timer;
    QSocketNotifier _happened; ///< the port was opened or closed
    QSocketNotifier _readable;
    QSocketNotifier _writable;

    bool _isOpen = false;
    qsizetype _sent = 0;
    QElapsedTimer _clock; ///< since the opening
};

} // namespace ridelog
