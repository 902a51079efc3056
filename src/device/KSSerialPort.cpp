#include "device/KSSerialPort.h"

#include "device/DeviceLog.h"
#include "device/WakeUp.h"
#include "platform/MainThread.h"
#include "platform/SystemCall.h"

#include <QFile>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>
#include <utility>

namespace ridelog {

Q_LOGGING_CATEGORY(lcDevice, "ridelog.device")

namespace {

bool setNonBlocking(int descriptor, bool on)
{
    const int flags = fcntl(descriptor, F_GETFL);
    return flags >= 0 && fcntl(descriptor, F_SETFL, on ? flags | O_NONBLOCK : flags & ~O_NONBLOCK) == 0;
}

/// Claims the device in the way that most programs do. Answers 0 or the number of the error.
int errorOfClaim(int descriptor)
{
    int isExclusive = 0;
    // Who may everything may also open what another program has for itself.
    if (ioctl(descriptor, TIOCGEXCL, &isExclusive) == 0 && isExclusive != 0)
        return EBUSY;
    // The terminal that we run in is no device.
    if (tcgetsid(descriptor) == getsid(0))
        return ENOTTY;
    if (uninterrupted([descriptor] { return flock(descriptor, LOCK_EX | LOCK_NB); }) != 0)
        return errno == EWOULDBLOCK ? EBUSY : errno;
    return 0;
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
    {
        // Nobody is left to hear anything, and soon perhaps no main thread either.
        const std::lock_guard messageLock(_messageLock);
        _postsMessages = false;
    }
    close();
    _dropReadTimer();
}

// Open and closed

std::shared_ptr<SerialFileHandle> KSSerialPort::open(Claim claim)
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
    auto wakeUp = std::make_shared<WakeUp>();
    if (_openError == 0 && !wakeUp->isValid())
        _openError = errno;
    auto handle = std::make_shared<SerialFileHandle>(descriptor);
    // First of all: the settings of a line that somebody else uses are not those to go back to.
    if (_openError == 0 && claim == Claim::yes)
        _openError = errorOfClaim(descriptor);
    if (_openError != 0) {
        logError("Error opening serial port", _bsdPath, _openError);
        return nullptr;
    }
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
    _wakeUp = std::move(wakeUp);
    _fileDescriptor = descriptor;
    return handle;
}

void KSSerialPort::close()
{
    if (!isOpen())
        return;
    const int descriptor = _fileDescriptor;
    // No thread may hold up the close. One that waits for the device is woken. One that is about to read or
    // write, or stuck in it, looks at the mode again when the device gets new settings, and returns.
    _wakeUp->wake();
    if (!setNonBlocking(descriptor, true))
        logError("Error clearing O_NONBLOCK", _bsdPath, errno);
    if (const int error = _originalOptions.applyTo(descriptor))
        qCWarning(lcDevice, "Error resetting tty attributes - %s(%d).\n", std::strerror(error), error);
    const std::lock_guard descriptorLock(_descriptorLock);
    const std::lock_guard closeLock(_closeLock);
    _dropReadTimer();
    _fileHandle->close();
    if (_fileHandle.use_count() > 1)
        qCWarning(lcDevice, "possibly leaking fileHandle (%d)\n", descriptor);
    _fileHandle.reset();
    qCDebug(lcDevice, "close (%d)\n", descriptor);
    _fileDescriptor = -1;
    _wakeUp.reset();
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
