#pragma once

#include <QByteArrayView>
#include <QString>

#include <optional>

namespace ridelog {

/// A serial line without a wire: the device's end of a pseudo-terminal. What is written to it arrives at
/// whoever has opened its path, a port like any other. Nothing here waits. When it goes, the line hangs up:
/// whoever still has the port open reads no more, and the path is gone.
class PseudoTerminal {
public:
    PseudoTerminal() = default;
    ~PseudoTerminal();
    PseudoTerminal(const PseudoTerminal&) = delete;
    PseudoTerminal& operator=(const PseudoTerminal&) = delete;

    /// Makes the port: a raw line of 9,600 bit/s with 8 data bits, no parity and 1 stop bit, until somebody
    /// sets it otherwise. None, or why there is none. Once only.
    std::optional<QString> make();

    /// Of the port, for whoever wants to open it.
    const QString& path() const { return _path; }
    /// Becomes readable when the port's user writes or closes it, writable when there is room.
    int descriptor() const { return _device; }
    /// Becomes readable when the port is opened or closed; none (−1) where the system has no more of these.
    int events() const { return _events; }

    /// Whether anybody has the port open.
    bool isOpen() const;
    /// From now on `wasReopened` is about those who have the port open now.
    void beginWatch();
    /// Whether they have all closed the port and somebody has opened it again, perhaps so fast that it was
    /// never seen closed. Always false where there are no events.
    bool wasReopened();
    /// Writes as many of the bytes as there is room for, and answers how many.
    qsizetype write(QByteArrayView bytes);
    /// Takes and forgets some of what the port's user has written; false if there is nothing.
    bool dropInput();
    /// Forgets what is on its way in both directions: bytes that were not read outlive the closing of the
    /// port. False if the port cannot be opened: its last user had it exclusively, and so it stays.
    bool clear();

private:
    bool openAndClear() const;
    void readEvents();

    QString _path;
    int _device = -1;
    int _events = -1;
    int _users = 0; ///< by the events; of openings at the same moment it may know only one
    bool _wasLeft = false;
    bool _wasReopened = false;
};

} // namespace ridelog
