#include "device/OdoCom.h"

#include "device/DeviceLog.h"

#include <cstring>

namespace ridelog {
namespace {

constexpr int bitsPerSecond = 9600;
constexpr int dataBits = 8;

} // namespace

OdoCom::OdoCom(const QString& bsdPath, StopBits stopBits) : _bsdPath(bsdPath), _stopBits(stopBits) {}

OdoCom::~OdoCom()
{
    // Somebody else may hold the port as well.
    if (_port && _port->delegate() == this)
        _port->setDelegate(nullptr);
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
    _openError = 0;
    if (_port && _port->bsdPath() == _bsdPath)
        return false;
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
    if (!port.open() || !port.claim()) {
        qCWarning(lcDevice, "couldn't open port for device ");
        return port.openError();
    }
    qCDebug(lcDevice, "port opened");
    _applyLineSettings(port);
    // A line as the system hands it out, made for people who type, would hold the dump back for a line's end
    // that never comes, and send all of it back to the device. One that somebody has set up stays as it is.
    if (port.testLineInput())
        port.setRawInput();
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
    if (_port)
        _port->stopReadInBackground();
}

void OdoCom::serialPortReadData(const ReadData& chunk)
{
    if (chunk.data.isEmpty()) {
        qCDebug(lcDevice, "port closed\r");
        if (_delegate)
            _delegate->handleTransferBrokenOff();
        return;
    }
    if (!_readingStarted && _delegate)
        _delegate->handleTransferStarted();
    _readingStarted = true;
    _odoData += chunk.data;
    if (_delegateHandlesProgress)
        _delegate->handleTransferProgress(static_cast<std::int32_t>(chunk.data.size()));
    if (_odoData.size() >= wholeDump) {
        stopReading();
        if (_delegate)
            _delegate->handleTransferFinished();
        return;
    }
    chunk.serialPort.readDataInBackground();
}

} // namespace ridelog
