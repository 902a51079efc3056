#include "device/KSSerialPort.h"

#include "device/DeviceLog.h"
#include "device/WakeUp.h"
#include "platform/MainThread.h"

#include <QFile>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <utility>

namespace ridelog {

Q_LOGGING_CATEGORY(lcDevice, "ridelog.device")

namespace {

template <typename Call>
int uninterrupted(Call&& call)
{
    int result = 0;
    do {
        result = call();
    } while (result < 0 && errno == EINTR);
    return result;
}

bool setNonBlocking(int descriptor, bool on)
{
    const int flags = fcntl(descriptor, F_GETFL);
    return flags >= 0 && fcntl(descriptor, F_SETFL, on ? flags | O_NONBLOCK : flags & ~O_NONBLOCK) == 0;
}

/// Logs what a call on the device has failed with.
void logError(const char* what, const QString& path, int error)
{
    qCWarning(lcDevice, "%s %s - %s(%d).\n", what, qUtf8Printable(path), std::strerror(error), error);
}

} // namespace

std::shared_ptr<KSSerialPort> KSSerialPort::init(const QString& bsdPath, const QString& withName)
{
    prepareMainThread();
    const std::shared_ptr<KSSerialPort> port(new KSSerialPort(bsdPath, withName));
    port->_self = port;
    // What clients hold: with the last of these references the port is let go. Threads and messages hold
    // `port` itself, and so keep the object for as long as they need it, but not the device.
    return {port.get(), [port](KSSerialPort* held) { held->_letGo(); }};
}

KSSerialPort::KSSerialPort(QString bsdPath, QString name)
    : _bsdPath(std::move(bsdPath)), _serviceName(std::move(name))
{
}

KSSerialPort::~KSSerialPort() = default;

void KSSerialPort::_letGo()
{
    setDelegate(nullptr);
    close();
    _dropReadTimer();
}

// Open and closed

std::shared_ptr<SerialFileHandle> KSSerialPort::open()
{
    if (isOpen())
        return _fileHandle;
    // Opening must neither wait for a carrier nor make the device our terminal, whose hang-up would end us.
    // Once open, the device is read in blocking mode.
    const int descriptor = uninterrupted([&] {
        return ::open(QFile::encodeName(_bsdPath).constData(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    });
    _openError = descriptor < 0 ? errno : 0;
    qCDebug(lcDevice, "open %s (%d)\n", qUtf8Printable(_bsdPath), descriptor);
    if (descriptor < 0) {
        logError("Error opening serial port", _bsdPath, _openError);
        return nullptr;
    }
    auto handle = std::make_shared<SerialFileHandle>(descriptor);
    _openError = _originalOptions.readFrom(descriptor);
    if (_openError == 0)
        _openError = _options.readFrom(descriptor);
    if (_openError == 0 && !setNonBlocking(descriptor, false))
        _openError = errno;
    if (_openError != 0) {
        logError("Error getting tty attributes", _bsdPath, _openError);
        return nullptr;
    }
    _fileHandle = handle;
    _wakeUp = std::make_shared<WakeUp>();
    _fileDescriptor = descriptor;
    return handle;
}

bool KSSerialPort::claim()
{
    int isExclusive = 0;
    // Who may everything may also open what another program has for itself.
    if (ioctl(_fileDescriptor, TIOCGEXCL, &isExclusive) == 0 && isExclusive != 0)
        _openError = EBUSY;
    else if (uninterrupted([this] { return flock(_fileDescriptor, LOCK_EX | LOCK_NB); }) != 0)
        _openError = errno == EWOULDBLOCK ? EBUSY : errno;
    else
        _openError = 0;
    if (_openError != 0)
        logError("Error claiming serial port", _bsdPath, _openError);
    return _openError == 0;
}

void KSSerialPort::close()
{
    if (!isOpen())
        return;
    _endWaits();
    const std::lock_guard descriptorLock(_descriptorLock);
    const std::lock_guard closeLock(_closeLock);
    const int descriptor = _fileDescriptor;
    if (const int error = _originalOptions.applyTo(descriptor))
        qCWarning(lcDevice, "Error resetting tty attributes - %s(%d).\n", std::strerror(error), error);
    _dropReadTimer();
    _fileHandle->close();
    if (_fileHandle.use_count() > 1)
        qCWarning(lcDevice, "possibly leaking fileHandle (%d)\n", descriptor);
    _fileHandle.reset();
    qCDebug(lcDevice, "close (%d)\n", descriptor);
    _fileDescriptor = -1;
    _wakeUp.reset();
}

/// Gets the background threads away from the descriptor.
void KSSerialPort::_endWaits()
{
    // Without waiting: neither may a write that is under way, nor the close.
    if (!setNonBlocking(_fileDescriptor, true))
        logError("Error clearing O_NONBLOCK", _bsdPath, errno);
    _wakeUp->wake();
    // A write that waits for a device that takes nothing looks at that mode when the output goes on.
    if (_countWriteInBackgroundThreads > 0) {
        tcflow(_fileDescriptor, TCOOFF);
        tcflow(_fileDescriptor, TCOON);
    }
}

// Who uses it

KSSerialPort* KSSerialPort::obtainBy(const void* client)
{
    if (_owner != nullptr)
        return nullptr;
    _owner = client;
    return this;
}

void KSSerialPort::free()
{
    _owner = nullptr;
    close();
}

void KSSerialPort::setDelegate(KSSerialPortDelegate* delegate)
{
    if (delegate == _delegate)
        return;
    _delegate = delegate;
    _delegateHandlesReadInBackground = delegate && delegate->handlesReadInBackground();
    _delegateHandlesWriteInBackground = delegate && delegate->handlesWriteInBackground();
}

// The line itself

void KSSerialPort::drainInput()
{
    uninterrupted([this] { return tcdrain(_fileDescriptor); });
}

void KSSerialPort::flushInput(bool input, bool output)
{
    if (input || output)
        tcflush(_fileDescriptor, input && output ? TCIOFLUSH : input ? TCIFLUSH : TCOFLUSH);
}

void KSSerialPort::sendBreak()
{
    tcsendbreak(_fileDescriptor, 0);
}

} // namespace ridelog
