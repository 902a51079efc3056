#pragma once

#include "device/SerialFileHandle.h"
#include "device/TerminalAttributes.h"

#include <QByteArray>
#include <QMap>
#include <QPointer>
#include <QScopedPointer>
#include <QString>
#include <QTimer>

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <mutex>
#include <shared_mutex>

namespace ridelog {

class KSSerialPort;
class WakeUp;

/// Who hears, on the main thread, what the background threads of a port have done. It has to take itself away
/// with setDelegate(nullptr) before it goes, unless it alone holds the port.
class KSSerialPortDelegate {
public:
    struct ReadData {
        KSSerialPort& serialPort;
        QByteArray data; ///< empty at the end of the input: closed, unplugged, or not to be read
    };
    struct WriteProgress {
        KSSerialPort& serialPort;
        qint64 value; ///< bytes written so far
        qint64 total; ///< bytes to write
    };

    virtual ~KSSerialPortDelegate() = default;
    // Both are asked once, when the delegate is set. Without an answer nothing is read or written for it.
    virtual bool handlesReadInBackground() const { return false; }
    virtual bool handlesWriteInBackground() const { return false; }
    virtual void serialPortReadData(const ReadData&) {}
    virtual void serialPortWriteProgress(const WriteProgress&) {}
};

/// Line settings as texts, under the keys below.
using SerialOptions = QMap<QString, QString>;

namespace SerialOptionKeys {

inline const QString serviceName = QStringLiteral("KSSerialOptionServiceName"); ///< the port's name
inline const QString speed = QStringLiteral("KSSerialOptionSpeed");             ///< bits per second
inline const QString dataBits = QStringLiteral("KSSerialOptionDataBits");       ///< 5 to 8
inline const QString parity = QStringLiteral("KSSerialOptionParity");           ///< Odd, Even; absent without
inline const QString stopBits = QStringLiteral("KSSerialOptionStopBits");       ///< 1 or 2
inline const QString inputFlowControl =
    QStringLiteral("KSSerialOptionInputFlowControl"); ///< RTS, DTR; absent without
inline const QString outputFlowControl =
    QStringLiteral("KSSerialOptionOutputFlowControl");            ///< CTS, DSR, CAR; absent without
inline const QString echo = QStringLiteral("KSSerialOptionEcho"); ///< YES; absent without

} // namespace SerialOptionKeys

/// A serial device of the machine: its line settings, and reading and writing on the caller's thread, by a
/// timer, or in threads of its own.
///
/// A port is held by reference. When the last of those who hold it lets go, it is closed; its threads, which
/// hold it as well, end then on their own. All operations are for the main thread.
class KSSerialPort {
public:
    /// A closed port.
    static std::shared_ptr<KSSerialPort> init(const QString& bsdPath, const QString& withName);
    ~KSSerialPort();
    KSSerialPort(const KSSerialPort&) = delete;
    KSSerialPort& operator=(const KSSerialPort&) = delete;

    QString bsdPath() const { return _bsdPath; }
    QString name() const { return _serviceName; }

    // Open and closed

    /// Whether the device is taken for this port alone, among the programs that ask for that.
    enum class Claim { no, yes };
    /// Takes over the device's settings. None on failure: `openError` has the reason.
    std::shared_ptr<SerialFileHandle> open(Claim claim = Claim::no);
    /// Gives the device back the settings that it had. Waiting reads end with an empty chunk.
    void close();
    bool isOpen() const { return _fileDescriptor >= 0; }
    /// Number of the error with which `open` failed last, 0 after success. EBUSY for a device that somebody
    /// else has claimed.
    int openError() const { return _openError; }

    // Who uses it

    /// This port for a client that becomes its owner; none if it has one.
    KSSerialPort* obtainBy(const void* client);
    /// Without an owner again, and closed.
    void free();
    bool available() const { return _owner == nullptr; }
    const void* owner() const { return _owner; }

    KSSerialPortDelegate* delegate() const { return _delegate; }
    void setDelegate(KSSerialPortDelegate* delegate);

    // Line settings. What is set here reaches the device with commitChanges.

    /// False on failure, which `errorCode` tells then.
    bool commitChanges();
    int errorCode() const { return _lastError; }

    int getSpeed() const { return static_cast<int>(_options.speed()); }
    void setSpeed(int bitsPerSecond);
    int getDataBits() const { return _options.dataBits(); }
    void setDataBits(int bits) { _options.setDataBits(bits); } ///< 5 to 8; others are set as 5
    bool testParity() const { return _options.test(Setting::parity); }
    bool testParityOdd() const { return _options.test(Setting::oddParity); }
    void setParityNone() { _options.set(Setting::parity, false); }
    void setParityEven();
    void setParityOdd();
    int getStopBits() const { return _options.test(Setting::twoStopBits) ? 2 : 1; }
    void setStopBits2(bool two) { _options.set(Setting::twoStopBits, two); }
    bool testEchoEnabled() const { return _options.test(Setting::echo); }
    void setEchoEnabled(bool on) { _options.set(Setting::echo, on); }
    bool testRTSInputFlowControl() const { return _options.test(Setting::rtsInput); }
    void setRTSInputFlowControl(bool on) { _options.set(Setting::rtsInput, on); }
    bool testDTRInputFlowControl() const { return _options.test(Setting::dtrInput); }
    void setDTRInputFlowControl(bool on) { _options.set(Setting::dtrInput, on); }
    bool testCTSOutputFlowControl() const { return _options.test(Setting::ctsOutput); }
    void setCTSOutputFlowControl(bool on) { _options.set(Setting::ctsOutput, on); }
    bool testDSROutputFlowControl() const { return _options.test(Setting::dsrOutput); }
    void setDSROutputFlowControl(bool on) { _options.set(Setting::dsrOutput, on); }
    bool testCAROutputFlowControl() const { return _options.test(Setting::carrierOutput); }
    void setCAROutputFlowControl(bool on) { _options.set(Setting::carrierOutput, on); }
    bool testHangupOnClose() const { return _options.test(Setting::hangupOnClose); }
    void setHangupOnClose(bool on) { _options.set(Setting::hangupOnClose, on); }
    bool getLocal() const { return _options.test(Setting::local); }
    void setLocal(bool on) { _options.set(Setting::local, on); }
    void setInputAtOnce() { _options.setInputAtOnce(); } ///< see TerminalAttributes

    SerialOptions getOptions();
    /// Merges the options into those of `getOptions` and commits all of them. Speed and data bits without an
    /// entry there stay; without one, parity, flow control and echo are off. Options for a port of another
    /// name are refused.
    void setOptions(const SerialOptions& options);
    void buildOptionsDictionary();

    // The line itself

    /// Waits until all that was written has been sent.
    void drainInput();
    /// Discards what waits to be read, to be sent, or both.
    void flushInput(bool input, bool output);
    void sendBreak();

    // Reading and writing on the caller's thread, see KSSerialPortAdditions.cpp

    /// Waits for input, at most 4,096 bytes of it. Empty at the input's end and on failure.
    QString readString();
    /// Writes the text in Latin-1 and answers how many bytes were written, -1 on failure.
    qint64 writeString(const QString& text);
    /// 1 if there is something to be read, 0 if not, -1 on failure.
    int checkRead() const;
    /// Calls `selector` with the text once something has arrived, as long as the target lives. It is looked
    /// for every tenth of a second. Takes the place of an earlier call.
    void waitForInput(QObject* target, std::function<void(const QString&)> selector);

    // Reading and writing in the background. The delegate hears the results.

    /// Reads one chunk of at most 4,096 bytes as soon as there is one.
    void readDataInBackground();
    /// A thread that waits for a chunk leaves it to the next one that is asked for.
    void stopReadInBackground() { _stopReadInBackground = true; }
    int numberOfReadInBackgroundThreads() const { return _countReadInBackgroundThreads; }
    /// Writes a block. Progress is told once a second if it takes its time.
    void writeDataInBackground(const QByteArray& data);
    void stopWriteInBackground() { _stopWriteInBackground = true; }
    int numberOfWriteInBackgroundThreads() const { return _countWriteInBackgroundThreads; }

private:
    using Setting = TerminalAttributes::Setting;

    KSSerialPort(QString bsdPath, QString name);
    void _letGo();

    void doRead();
    void _startReadTimer();
    void _dropReadTimer();
    bool _startThread(std::atomic<int>& count, std::function<void(KSSerialPort&)> work);
    void readDataInBackgroundThread(const std::shared_ptr<const WakeUp>& wakeUp);
    QByteArray _readChunk() const;
    void writeDataInBackgroundThread(const QByteArray& data, std::chrono::seconds estimate,
                                     const std::shared_ptr<const WakeUp>& wakeUp);
    qint64 _writeChunk(const char* bytes, qint64 count, const WakeUp& wakeUp) const;
    void _post(std::function<void(KSSerialPort&)> message);
    void _postData(const QByteArray& data);
    void _postProgress(qint64 value, qint64 total);

    std::weak_ptr<KSSerialPort> _self; ///< for those who keep the object but not the device
    const QString _bsdPath;
    const QString _serviceName;
    TerminalAttributes _options;         ///< being edited
    TerminalAttributes _originalOptions; ///< the device's own
    SerialOptions _optionsDictionary;
    std::shared_ptr<SerialFileHandle> _fileHandle;
    int _openError = 0;
    int _lastError = 0;
    const void* _owner = nullptr;

    std::unique_ptr<QTimer, QScopedPointerDeleteLater> _readTimer;
    QPointer<QObject> _readTarget;
    std::function<void(const QString&)> _readSelector;

    KSSerialPortDelegate* _delegate = nullptr;
    bool _delegateHandlesReadInBackground = false;
    bool _delegateHandlesWriteInBackground = false;

    // What the background threads share with the main thread. A thread takes _readLock or _writeLock, then
    // one of the others; `close` takes _descriptorLock and then _closeLock.

    std::atomic<int> _fileDescriptor = -1;
    std::shared_ptr<WakeUp> _wakeUp; ///< one for each opening; none while closed
    std::mutex _readLock;            ///< one reading thread at a time
    std::mutex _writeLock;           ///< one writing thread at a time
    std::mutex _closeLock;           ///< held to read and deliver, and to close
    /// Held in common while the descriptor is waited for or written to, so that it is not closed under those
    /// who do.
    mutable std::shared_mutex _descriptorLock;
    std::mutex _messageLock; ///< held to post a message, and to post no more
    bool _postsMessages = true;
    std::atomic<bool> _stopReadInBackground = false;
    std::atomic<bool> _stopWriteInBackground = false;
    std::atomic<int> _countReadInBackgroundThreads = 0;
    std::atomic<int> _countWriteInBackgroundThreads = 0;
};

} // namespace ridelog
