#include "device/OdoCom.h"

#include "device/DeviceLog.h"

#include <cerrno>
#include <cstring>

namespace ridelog {
namespace {

constexpr int bitsPerSecond = 9600;
constexpr int dataBits = 8;

} // namespace

OdoCom::OdoCom(const QString& bsdPath, StopBits stopBits) : _bsdPath(bsdPath), _stopBits(stopBits) {}

OdoCom::~OdoCom()
{
    _letPortGo();
}

/// Somebody else may hold the port as well.
void OdoCom::_letPortGo()
{
    if (_port && _port->delegate() == this)
        _port->setDelegate(nullptr);
    _port.reset();
}

void OdoCom::setDelegate(OdoComDelegate* delegate)
{
    if (delegate == _delegate)
        return;
    _delegate = delegate;
    _delegateHandlesProgress = delegate && delegate->handlesTransferProgress();
    qCDebug(lcDevice, "delegateHandlesProgress %d", _delegateHandlesProgress);
}

void OdoCom::setPort(const std::shared_ptr<KSSerialPort>& port)
{
    if (port == _port)
        return;
    _letPortGo();
    _port = port;
    if (_port)
        _applyLineSettings(*_port);
}

void OdoCom::_applyLineSettings(KSSerialPort& port) const
{
    port.setSpeed(bitsPerSecond);
    port.setDataBits(dataBits);
    port.setParityNone();
    port.setStopBits2(_stopBits == StopBits::two);
}

bool OdoCom::startReading()
{
    _readingStarted = false;
    _openError = EALREADY;
    if (_port && _port->bsdPath() == _bsdPath)
        return false;
    _stopped = false;
    if (_port)
        _port->close();
    setPort(KSSerialPort::init(_bsdPath, _bsdPath));
    _port->setDelegate(this);
    _openError = _openPort(*_port);
    if (_openError != 0) {
        setPort(nullptr);
        return false;
    }
    _port->readDataInBackground();
    return true;
}

/// Opens the port with the line settings of a transfer. Answers 0 or the number of the error.
int OdoCom::_openPort(KSSerialPort& port) const
{
    qCDebug(lcDevice, "attempting to open port");
    if (!port.open(KSSerialPort::Claim::yes)) {
        qCWarning(lcDevice, "couldn't open port for device ");
        return port.openError();
    }
    qCDebug(lcDevice, "port opened");
    _applyLineSettings(port);
    // A line as the system hands it out, made for people who type, would hold the dump back for a line's end
    // that never comes, and send all of it back to the device.
    port.setInputAtOnce();
    if (!port.commitChanges()) {
        qCWarning(lcDevice, "Error setting tty attributes %s - %s(%d).\n", qUtf8Printable(port.bsdPath()),
                  std::strerror(port.errorCode()), port.errorCode());
        return port.errorCode();
    }
    return 0;
}

void OdoCom::stopReading()
{
    qCDebug(lcDevice, "stop reading");
    _stopped = true;
    if (_port)
        _port->stopReadInBackground();
}

void OdoCom::serialPortReadData(const ReadData& chunk)
{
    if (chunk.data.isEmpty()) {
        qCDebug(lcDevice, "port closed\r");
        if (_delegate && !_stopped)
            _delegate->handleTransferBrokenOff();
        return;
    }
    if (_stopped) {
        _odoData += chunk.data;
        return;
    }
    if (!_readingStarted && _delegate)
        _delegate->handleTransferStarted();
    _readingStarted = true;
    _odoData += chunk.data;
    if (_delegateHandlesProgress)
        _delegate->handleTransferProgress(static_cast<std::int32_t>(chunk.data.size()));
    if (_stopped)
        return;
    if (_odoData.size() < wholeDump)
        return chunk.serialPort.readDataInBackground();
    stopReading();
    if (_delegate)
        _delegate->handleTransferFinished();
}

} // namespace ridelog
