#include "simulator/DeviceSimulator.h"

#include "simulator/PortLink.h"
#include "simulator/PseudoTerminal.h"

#include <algorithm>
#include <utility>

namespace ridelog {
namespace {

using namespace std::chrono_literals;

/// At the device's pace ten bytes are due each time.
constexpr auto interval = 10ms;
/// Short enough for bytes to go one by one at the device's pace.
constexpr auto trickleInterval = 1ms;

} // namespace

DeviceSimulator::DeviceSimulator(const Settings& settings, QObject* parent)
    : QObject(parent),
      _bytes(faultyDump(settings.dump, settings.fault)),
      _speed(settings.speed),
      _fault(settings.fault),
      _delay(_fault == Fault::late ? settings.lateBy : 0ms),
      _linkPath(settings.link),
      _timer(this),
      _happened(QSocketNotifier::Read, this),
      _readable(QSocketNotifier::Read, this),
      _writable(QSocketNotifier::Write, this)
{
    connect(&_timer, &QTimer::timeout, this, &DeviceSimulator::look);
    connect(&_happened, &QSocketNotifier::activated, this, &DeviceSimulator::look);
    connect(&_readable, &QSocketNotifier::activated, this, &DeviceSimulator::look);
    connect(&_writable, &QSocketNotifier::activated, this, &DeviceSimulator::look);
}

DeviceSimulator::~DeviceSimulator()
{
    stop();
}

std::optional<QString> DeviceSimulator::start()
{
    stop();
    if (!_linkPath.isEmpty())
        _link = std::make_unique<PortLink>(_linkPath);
    auto error = plugIn();
    if (error)
        stop();
    return error;
}

void DeviceSimulator::stop()
{
    _timer.stop();
    _happened.setEnabled(false);
    _readable.setEnabled(false);
    _writable.setEnabled(false);
    _link.reset();
    _terminal.reset();
    _isOpen = false;
}

QString DeviceSimulator::path() const
{
    return _terminal ? _terminal->path() : QString();
}

/// What was plugged in before hangs up, but only when its successor is there.
std::optional<QString> DeviceSimulator::plugIn()
{
    auto terminal = std::make_unique<PseudoTerminal>();
    if (auto error = terminal->make())
        return error;
    if (_link) {
        if (auto error = _link->pointTo(terminal->path()))
            return error;
    }
    _happened.setSocket(terminal->events());
    _happened.setEnabled(terminal->events() >= 0);
    _readable.setSocket(terminal->descriptor());
    _writable.setSocket(terminal->descriptor());
    _terminal = std::move(terminal);
    _isOpen = false;
    setTimer();
    return std::nullopt;
}

void DeviceSimulator::plugInAgain()
{
    const auto error = plugIn();
    if (error)
        stop();
    const auto newPath = path();
    Q_EMIT closed(_sent);
    if (error)
        Q_EMIT failed(*error);
    else if (path() == newPath) // whoever hears of the closing may have stopped the device
        Q_EMIT pathChanged(newPath);
}

/// The pace needs it, and so does the opening of the port where the system tells nothing of it.
void DeviceSimulator::setTimer()
{
    if (_isOpen && _sent < _bytes.size())
        _timer.start(_fault == Fault::trickle ? trickleInterval : interval);
    else if (_terminal->events() < 0)
        _timer.start(interval);
    else
        _timer.stop();
}

/// Whatever has happened, the port tells how things are.
void DeviceSimulator::look()
{
    const bool wasReopened = _terminal->wasReopened();
    if (_isOpen && (wasReopened || !_terminal->isOpen()))
        endOpening();
    if (_terminal && !_isOpen && _terminal->isOpen())
        beginOpening();
    if (_isOpen) {
        _terminal->dropInput();
        send();
    }
}

void DeviceSimulator::beginOpening()
{
    _terminal->beginWatch();
    _isOpen = true;
    _sent = 0;
    _clock.start();
    _readable.setEnabled(true);
    setTimer();
    Q_EMIT opened();
}

void DeviceSimulator::endOpening()
{
    _isOpen = false;
    _readable.setEnabled(false);
    _writable.setEnabled(false);
    setTimer();
    // A port that its last user had exclusively lets nobody in any more.
    if (!_terminal->clear() && !_terminal->isOpen())
        plugInAgain();
    else
        Q_EMIT closed(_sent);
}

void DeviceSimulator::send()
{
    auto due = QByteArrayView(_bytes).first(dueBytes()).sliced(_sent);
    if (_fault == Fault::trickle)
        due.truncate(std::min<qsizetype>(due.size(), 1));
    const auto written = _terminal->write(due);
    _sent += written;
    _writable.setEnabled(_sent < dueBytes());
    if (written == 0)
        return;
    const bool wasLast = _sent == _bytes.size();
    if (wasLast)
        setTimer();
    Q_EMIT sent(_sent, _bytes.size());
    // Slots may have stopped it.
    if (wasLast && _isOpen)
        Q_EMIT finished(_sent);
    if (wasLast && _isOpen && _fault == Fault::cut)
        plugInAgain();
}

/// How many bytes a device that began with the opening has sent by now.
qsizetype DeviceSimulator::dueBytes() const
{
    const std::chrono::duration<double> since = std::chrono::nanoseconds(_clock.nsecsElapsed()) - _delay;
    if (since.count() < 0)
        return 0;
    const auto due = since.count() * bytesPerSecond * _speed;
    const auto all = static_cast<double>(_bytes.size());
    return _speed == 0 || due >= all ? _bytes.size() : static_cast<qsizetype>(due);
}

} // namespace ridelog
