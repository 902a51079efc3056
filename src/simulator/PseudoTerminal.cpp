#include "simulator/PseudoTerminal.h"

#include "platform/SystemCall.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <sys/inotify.h>
#include <termios.h>
#include <unistd.h>
#include <utility>

namespace ridelog {
namespace {

/// Through the device's end the settings of the port itself are read and written.
bool setLine(int device)
{
    termios settings{};
    if (::tcgetattr(device, &settings) != 0)
        return false;
    ::cfmakeraw(&settings);
    settings.c_cflag &= ~static_cast<tcflag_t>(CSTOPB);
    settings.c_cflag |= CREAD | CLOCAL;
    return ::cfsetspeed(&settings, B9600) == 0 && ::tcsetattr(device, TCSANOW, &settings) == 0;
}

} // namespace

PseudoTerminal::~PseudoTerminal()
{
    if (_events >= 0)
        ::close(_events);
    if (_device >= 0)
        ::close(_device);
}

std::optional<QString> PseudoTerminal::make()
{
    std::array<char, 64> name{};
    _device = ::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK);
    if (_device < 0 || ::grantpt(_device) != 0 || ::unlockpt(_device) != 0 ||
        ::ptsname_r(_device, name.data(), name.size()) != 0 || !setLine(_device))
        return QStringLiteral("no pseudo-terminal is to be had: ") + systemError();
    _path = QFile::decodeName(name.data());
    // A port that was never opened looks as if it were open.
    if (!openAndClear())
        return QStringLiteral("the pseudo-terminal %1 cannot be opened: %2").arg(_path, systemError());
    _events = ::inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    if (_events >= 0 && ::inotify_add_watch(_events, name.data(), IN_OPEN | IN_CLOSE) < 0)
        ::close(std::exchange(_events, -1));
    return std::nullopt;
}

bool PseudoTerminal::isOpen() const
{
    pollfd device{.fd = _device, .events = 0, .revents = 0};
    return ::poll(&device, 1, 0) <= 0 || (device.revents & POLLHUP) == 0;
}

void PseudoTerminal::beginWatch()
{
    readEvents();
    _wasLeft = false;
    _wasReopened = false;
}

bool PseudoTerminal::wasReopened()
{
    readEvents();
    return _wasReopened;
}

/// A closing is told before it takes place, and an opening after it.
void PseudoTerminal::readEvents()
{
    alignas(inotify_event) std::array<char, 4096> events{};
    ssize_t size = 0;
    while (_events >= 0 && (size = ::read(_events, events.data(), events.size())) > 0) {
        for (std::size_t at = 0; at < static_cast<std::size_t>(size);) {
            inotify_event event{};
            std::memcpy(&event, events.data() + at, sizeof(event));
            at += sizeof(event) + event.len;
            if ((event.mask & IN_OPEN) != 0) {
                ++_users;
                _wasReopened = _wasReopened || _wasLeft;
            } else if ((event.mask & IN_CLOSE) != 0) {
                _users = std::max(_users - 1, 0);
                _wasLeft = _wasLeft || _users == 0;
            }
        }
    }
}

qsizetype PseudoTerminal::write(QByteArrayView bytes)
{
    const auto written = ::write(_device, bytes.data(), static_cast<std::size_t>(bytes.size()));
    return written < 0 ? 0 : written;
}

bool PseudoTerminal::dropInput()
{
    std::array<char, 4096> bytes{};
    return ::read(_device, bytes.data(), bytes.size()) > 0;
}

bool PseudoTerminal::clear()
{
    if (!isOpen())
        _users = 0;
    const bool cleared = openAndClear();
    while (dropInput()) {
    }
    return cleared;
}

bool PseudoTerminal::openAndClear() const
{
    const auto port =
        ::open(QFile::encodeName(_path).constData(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    if (port < 0)
        return false;
    const bool cleared = ::tcflush(port, TCIOFLUSH) == 0;
    ::close(port);
    return cleared;
}

} // namespace ridelog
