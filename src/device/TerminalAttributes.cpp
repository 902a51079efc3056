#include "device/TerminalAttributes.h"

// The kernel's own record: unlike the C library's it holds any speed. The two cannot be had in one file.
#include <algorithm>
#include <asm/termbits.h>
#include <cerrno>
#include <cmath>
#include <iterator>
#include <sys/ioctl.h>
#include <utility>

namespace ridelog {
namespace {

using Setting = TerminalAttributes::Setting;

/// The speeds that have a symbol. Other programs that look at the line understand only these.
constexpr std::pair<std::uint32_t, std::uint32_t> symbols[] = {
    {0, B0},
    {50, B50},
    {75, B75},
    {110, B110},
    {134, B134},
    {150, B150},
    {200, B200},
    {300, B300},
    {600, B600},
    {1200, B1200},
    {1800, B1800},
    {2400, B2400},
    {4800, B4800},
    {9600, B9600},
    {19200, B19200},
    {38400, B38400},
    {57600, B57600},
    {115200, B115200},
    {230400, B230400},
    {460800, B460800},
    {500000, B500000},
    {576000, B576000},
    {921600, B921600},
    {1000000, B1000000},
    {1152000, B1152000},
    {1500000, B1500000},
    {2000000, B2000000},
    {2500000, B2500000},
    {3000000, B3000000},
    {3500000, B3500000},
    {4000000, B4000000},
};

std::uint32_t symbolOf(std::uint32_t speed)
{
    const auto* found = std::ranges::find(symbols, speed, &std::pair<std::uint32_t, std::uint32_t>::first);
    return found == std::end(symbols) ? std::uint32_t{BOTHER} : found->second;
}

/// Sender and receiver understand each other as long as their speeds differ by less than this.
constexpr double speedTolerance = 0.03;

bool isSpeed(std::uint32_t speed, std::uint32_t wanted)
{
    const auto difference = static_cast<double>(speed) - static_cast<double>(wanted);
    return std::abs(difference) <= speedTolerance * static_cast<double>(wanted);
}

struct Bit {
    bool isLocalFlag;
    std::uint32_t mask; ///< 0 for flow control, which is kept apart
};

Bit bitOf(Setting setting)
{
    switch (setting) {
    case Setting::twoStopBits:
        return {false, CSTOPB};
    case Setting::parity:
        return {false, PARENB};
    case Setting::oddParity:
        return {false, PARODD};
    case Setting::hangupOnClose:
        return {false, HUPCL};
    case Setting::local:
        return {false, CLOCAL};
    case Setting::echo:
        return {true, ECHO};
    case Setting::rtsInput:
    case Setting::ctsOutput:
    case Setting::dtrInput:
    case Setting::dsrOutput:
    case Setting::carrierOutput:
    case Setting::count:
        break;
    }
    return {false, 0};
}

void change(std::uint32_t& flags, std::uint32_t mask, bool on)
{
    flags = on ? flags | mask : flags & ~mask;
}

constexpr std::size_t index(Setting setting)
{
    return static_cast<std::size_t>(setting);
}

} // namespace

int TerminalAttributes::readFrom(int descriptor)
{
    termios2 record{};
    if (ioctl(descriptor, TCGETS2, &record) != 0)
        return errno;
    static_assert(std::size(record.c_cc) <= std::tuple_size_v<decltype(_controlCharacters)>);
    _inputFlags = record.c_iflag;
    _outputFlags = record.c_oflag;
    _controlFlags = record.c_cflag;
    _localFlags = record.c_lflag;
    _discipline = record.c_line;
    std::ranges::copy(record.c_cc, _controlCharacters.begin());
    _inputSpeed = record.c_ispeed;
    _outputSpeed = record.c_ospeed;
    _flowControl.reset();
    _flowControl[index(Setting::rtsInput)] = (_controlFlags & CRTSCTS) != 0;
    _flowControl[index(Setting::ctsOutput)] = (_controlFlags & CRTSCTS) != 0;
    return 0;
}

int TerminalAttributes::applyTo(int descriptor) const
{
    termios2 record{};
    record.c_iflag = _inputFlags;
    record.c_oflag = _outputFlags;
    record.c_cflag = _controlFlags;
    change(record.c_cflag, CRTSCTS, test(Setting::rtsInput) || test(Setting::ctsOutput));
    record.c_lflag = _localFlags;
    record.c_line = _discipline;
    std::copy_n(_controlCharacters.begin(), std::size(record.c_cc), record.c_cc);
    record.c_ispeed = _inputSpeed;
    record.c_ospeed = _outputSpeed;
    if (ioctl(descriptor, TCSETS2, &record) != 0)
        return errno;
    // A driver that cannot do a speed takes another one and says nothing.
    termios2 applied{};
    if (ioctl(descriptor, TCGETS2, &applied) != 0)
        return errno;
    return isSpeed(applied.c_ospeed, _outputSpeed) ? 0 : EINVAL;
}

bool TerminalAttributes::test(Setting setting) const
{
    const auto [isLocalFlag, mask] = bitOf(setting);
    if (mask == 0)
        return _flowControl[index(setting)];
    return ((isLocalFlag ? _localFlags : _controlFlags) & mask) != 0;
}

void TerminalAttributes::set(Setting setting, bool on)
{
    const auto [isLocalFlag, mask] = bitOf(setting);
    if (mask == 0)
        _flowControl[index(setting)] = on;
    else
        change(isLocalFlag ? _localFlags : _controlFlags, mask, on);
}

void TerminalAttributes::setSpeed(std::uint32_t bitsPerSecond)
{
    // No input speed: it follows the output's.
    _controlFlags &= ~std::uint32_t{CBAUD | CIBAUD};
    _controlFlags |= symbolOf(bitsPerSecond);
    _inputSpeed = bitsPerSecond;
    _outputSpeed = bitsPerSecond;
}

int TerminalAttributes::dataBits() const
{
    switch (_controlFlags & CSIZE) {
    case CS6:
        return 6;
    case CS7:
        return 7;
    case CS8:
        return 8;
    default:
        return 5;
    }
}

void TerminalAttributes::setDataBits(int bits)
{
    const auto size = bits == 6 ? CS6 : bits == 7 ? CS7 : bits == 8 ? CS8 : CS5;
    _controlFlags = (_controlFlags & ~std::uint32_t{CSIZE}) | static_cast<std::uint32_t>(size);
}

void TerminalAttributes::setInputAtOnce()
{
    if ((_localFlags & ICANON) != 0) {
        _inputFlags &=
            ~std::uint32_t{IGNBRK | BRKINT | PARMRK | INPCK | ISTRIP | INLCR | IGNCR | ICRNL | IXON | IXOFF};
        _outputFlags &= ~std::uint32_t{OPOST};
        _localFlags &= ~std::uint32_t{ECHO | ECHONL | ICANON | ISIG | IEXTEN};
    }
    _controlCharacters[VMIN] = 1;
    _controlCharacters[VTIME] = 0;
}

} // namespace ridelog
