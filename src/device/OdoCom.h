#pragma once

#include "device/KSSerialPort.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <memory>

namespace ridelog {

/// Who hears of a transfer, on the main thread.
class OdoComDelegate {
public:
    virtual ~OdoComDelegate() = default;
    /// The first bytes have arrived.
    virtual void handleTransferStarted() = 0;
    virtual bool handlesTransferProgress() const { return false; } ///< asked once, when the delegate is set
    /// So many bytes have been added.
    virtual void handleTransferProgress(std::int32_t) {}
    /// A whole dump has arrived. The session is done, and may be destroyed here.
    virtual void handleTransferFinished() = 0;
    /// The line has ended before a whole dump had arrived: closed, unplugged, or not to be read. The session
    /// is done, and may be destroyed here.
    virtual void handleTransferBrokenOff() {}
};

/// The transfer of one raw dump: listens at a port until the device has sent its whole memory. What the bytes
/// say is not looked at. There is no limit of time: whoever waits may stop.
class OdoCom : private KSSerialPortDelegate {
public:
    /// The transfer is complete with so many bytes. The last chunk may bring more.
    static constexpr qsizetype wholeDump = 81'930;

    enum class StopBits { one, two };
    /// For the device at this path. Nothing is opened yet.
    explicit OdoCom(const QString& bsdPath, StopBits stopBits = StopBits::one);
    ~OdoCom() override;
    OdoCom(const OdoCom&) = delete;
    OdoCom& operator=(const OdoCom&) = delete;

    void setDelegate(OdoComDelegate* delegate);
    OdoComDelegate* delegate() const { return _delegate; }

    /// Sets the line settings of a transfer on the port that it takes.
    void setPort(const std::shared_ptr<KSSerialPort>& port);
    const std::shared_ptr<KSSerialPort>& port() const { return _port; }

    /// Opens the port and listens. False if it cannot be had: `openError` has the number of the reason,
    /// EALREADY if the session has its port already.
    bool startReading();
    int openError() const { return _openError; }
    /// Asks for no further chunk, and tells the delegate nothing more. What has arrived stays, and what was
    /// on its way is still added.
    void stopReading();

    /// All that has arrived so far.
    const QByteArray& odoData() const { return _odoData; }

private:
    bool handlesReadInBackground() const override { return true; }
    void serialPortReadData(const ReadData& chunk) override;
    void _applyLineSettings(KSSerialPort& port) const;
    void _letPortGo();
    int _openPort(KSSerialPort& port) const;

    const QString _bsdPath;
    const StopBits _stopBits;
    std::shared_ptr<KSSerialPort> _port;
    QByteArray _odoData;
    OdoComDelegate* _delegate = nullptr;
    bool _delegateHandlesProgress = false;
    bool _readingStarted = false; ///< a first chunk has arrived
    bool _stopped = false;
    int _openError = 0;
};

} // namespace ridelog
