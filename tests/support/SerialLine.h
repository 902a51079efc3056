#pragma once

#include "tests/support/Events.h"

#include <QByteArray>
#include <QString>

#include <array>
#include <fcntl.h>
#include <stdexcept>
#include <stdlib.h>
#include <termios.h>
#include <unistd.h>

namespace ridelog {

/// A serial line whose other end is in the test's hands.
class SerialLine {
public:
    /// As the system hands it out, it is made for people who type; raw, every byte passes as it is.
    enum class Kind { raw, asHandedOut };
    explicit SerialLine(Kind kind = Kind::raw)
        : _end(posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC))
    {
        std::array<char, 64> name{};
        if (_end < 0 || grantpt(_end) != 0 || unlockpt(_end) != 0 ||
            ptsname_r(_end, name.data(), name.size()) != 0)
            throw std::runtime_error("no pseudo-terminal");
        _path = QString::fromLatin1(name.data());
        if (kind == Kind::raw) {
            auto raw = settings();
            cfmakeraw(&raw);
            tcsetattr(_end, TCSANOW, &raw);
        }
    }
    ~SerialLine() { hangUp(); }
    SerialLine(const SerialLine&) = delete;
    SerialLine& operator=(const SerialLine&) = delete;

    QString path() const { return _path; }
    int end() const { return _end; }

    /// The line's settings, as any other program would see them.
    termios settings() const
    {
        termios found{};
        tcgetattr(_end, &found);
        return found;
    }

    /// Sends the bytes as the reader takes them. False if it does not.
    bool send(const QByteArray& bytes) const
    {
        qsizetype sent = 0;
        return eventually([&] {
            const auto count =
                ::write(_end, bytes.constData() + sent, static_cast<std::size_t>(bytes.size() - sent));
            sent += std::max<ssize_t>(count, 0);
            return sent == bytes.size();
        });
    }

    /// What has arrived at this end.
    QByteArray received() const
    {
        QByteArray bytes(65536, '\0');
        const auto count = ::read(_end, bytes.data(), static_cast<std::size_t>(bytes.size()));
        bytes.resize(std::max<ssize_t>(count, 0));
        return bytes;
    }

    /// Drops what an earlier reader has not taken.
    void forget() const
    {
        const int reader = ::open(qPrintable(_path), O_RDWR | O_NOCTTY | O_CLOEXEC);
        tcflush(reader, TCIOFLUSH);
        ::close(reader);
    }

    /// As when the adapter is pulled out.
    void hangUp()
    {
        if (_end >= 0)
            ::close(_end);
        _end = -1;
    }

private:
    int _end;
    QString _path;
};

} // namespace ridelog
