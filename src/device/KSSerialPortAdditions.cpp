// Reading and writing: on the caller's thread, by a timer on its event loop, and in background threads that
// tell the port's delegate on the main thread.

#include "device/DeviceLog.h"
#include "device/KSSerialPort.h"
#include "device/WakeUp.h"
#include "platform/MainThread.h"
#include "platform/SystemCall.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <ctime>
#include <poll.h>
#include <system_error>
#include <thread>
#include <unistd.h>
#include <utility>

namespace ridelog {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr qint64 largestChunk = 4096;
constexpr auto lookForInputEvery = 100ms;

/// Writes estimated to take longer tell their progress from the start.
constexpr auto shortWrite = 3s;
constexpr auto firstProgressOfShortWrite = 2s;
constexpr auto progressEvery = 1s;

} // namespace

// On the caller's thread

QString KSSerialPort::readString()
{
    return QString::fromLatin1(_readChunk());
}

qint64 KSSerialPort::writeString(const QString& text)
{
    const auto bytes = text.toLatin1();
    return uninterrupted(
        [&] { return ::write(_fileDescriptor, bytes.constData(), static_cast<std::size_t>(bytes.size())); });
}

int KSSerialPort::checkRead() const
{
    pollfd wait{.fd = _fileDescriptor, .events = POLLIN, .revents = 0};
    if (wait.fd < 0)
        return -1;
    const timespec atMost{.tv_sec = 0, .tv_nsec = 1000};
    const int ready = uninterrupted([&] { return ppoll(&wait, 1, &atMost, nullptr); });
    return ready > 0 && (wait.revents & POLLNVAL) != 0 ? -1 : ready;
}

/// At most 4,096 bytes; none at the end of the input and on failure.
QByteArray KSSerialPort::_readChunk() const
{
    QByteArray chunk(largestChunk, Qt::Uninitialized);
    const auto count = uninterrupted(
        [&] { return ::read(_fileDescriptor, chunk.data(), static_cast<std::size_t>(largestChunk)); });
    chunk.resize(std::max<ssize_t>(count, 0));
    return chunk;
}

// By a timer

void KSSerialPort::waitForInput(QObject* target, std::function<void(const QString&)> selector)
{
    _readTarget = target;
    _readSelector = std::move(selector);
    _startReadTimer();
}

void KSSerialPort::_startReadTimer()
{
    if (!_readTimer) {
        _readTimer.reset(new QTimer);
        _readTimer->setSingleShot(true);
        _readTimer->callOnTimeout([this] { doRead(); });
    }
    _readTimer->start(lookForInputEvery);
}

void KSSerialPort::doRead()
{
    const int ready = checkRead();
    if (ready == 0)
        return _startReadTimer();
    if (ready > 0 && _readTarget)
        std::exchange(_readSelector, nullptr)(readString());
}

/// The timer may be the one that calls.
void KSSerialPort::_dropReadTimer()
{
    _readTarget = nullptr;
    _readSelector = nullptr;
    if (_readTimer)
        _readTimer->stop();
    _readTimer.reset();
}

// In the background

/// Runs the work in a thread of its own, which keeps the port as long as it takes. False where the system has
/// no thread left.
bool KSSerialPort::_startThread(std::atomic<int>& count, std::function<void(KSSerialPort&)> work)
{
    ++count;
    try {
        std::thread([port = _self.lock(), &count, work = std::move(work)] {
            work(*port);
            --count;
        }).detach();
        return true;
    } catch (const std::system_error& error) {
        qCWarning(lcDevice, "Error starting a thread for %s - %s(%d).\n", qUtf8Printable(_bsdPath),
                  error.what(), error.code().value());
        --count;
        return false;
    }
}

void KSSerialPort::readDataInBackground()
{
    if (!_delegateHandlesReadInBackground)
        return;
    // Not when the thread begins: a stop in between is for this read as well.
    _stopReadInBackground = false;
    const auto work = [wakeUp = _wakeUp](KSSerialPort& port) { port.readDataInBackgroundThread(wakeUp); };
    if (!_startThread(_countReadInBackgroundThreads, work))
        _postData({});
}

/// `wakeUp` tells whether the port is still open as it was when the thread was asked for.
void KSSerialPort::readDataInBackgroundThread(const std::shared_ptr<const WakeUp>& wakeUp)
{
    const std::lock_guard readLock(_readLock);
    for (bool delivered = false; !delivered;) {
        bool isReady = false;
        {
            const std::shared_lock descriptorLock(_descriptorLock);
            isReady = wakeUp && !wakeUp->isWoken() && wakeUp->waitFor(_fileDescriptor, POLLIN);
        }
        // Whatever has come is left to the next thread.
        if (_stopReadInBackground)
            return;
        const std::lock_guard closeLock(_closeLock);
        isReady = isReady && !wakeUp->isWoken();
        // What had come may have been flushed meanwhile.
        delivered = !isReady || checkRead() != 0;
        if (delivered)
            _postData(isReady ? _readChunk() : QByteArray());
    }
}

void KSSerialPort::writeDataInBackground(const QByteArray& data)
{
    if (!_delegateHandlesWriteInBackground)
        return;
    _stopWriteInBackground = false;
    const int speed = getSpeed();
    const std::chrono::seconds estimate(speed > 0 ? data.size() * 8 / speed : 0);
    _startThread(_countWriteInBackgroundThreads, [wakeUp = _wakeUp, data, estimate](KSSerialPort& port) {
        port.writeDataInBackgroundThread(data, estimate, wakeUp);
    });
}

void KSSerialPort::writeDataInBackgroundThread(const QByteArray& data, std::chrono::seconds estimate,
                                               const std::shared_ptr<const WakeUp>& wakeUp)
{
    const std::lock_guard writeLock(_writeLock);
    bool showsProgress = estimate > shortWrite;
    if (showsProgress)
        _postProgress(0, data.size());
    auto nextReport = Clock::now() + (showsProgress ? progressEvery : firstProgressOfShortWrite);
    qint64 written = 0;
    while (!_stopWriteInBackground && written < data.size()) {
        const auto count = std::min(data.size() - written, largestChunk);
        const auto taken = wakeUp ? _writeChunk(data.constData() + written, count, *wakeUp) : -1;
        if (taken <= 0)
            break;
        written += taken;
        if (Clock::now() > nextReport && (showsProgress || written < data.size())) {
            _postProgress(written, data.size());
            nextReport = Clock::now() + progressEvery;
            showsProgress = true;
        }
    }
    if (showsProgress)
        _postProgress(written, data.size());
    _stopWriteInBackground = false;
}

/// Answers how many bytes were written, -1 on failure and once the port was closed.
qint64 KSSerialPort::_writeChunk(const char* bytes, qint64 count, const WakeUp& wakeUp) const
{
    const std::shared_lock descriptorLock(_descriptorLock);
    ssize_t written = -1;
    while (!wakeUp.isWoken()) {
        written = ::write(_fileDescriptor, bytes, static_cast<std::size_t>(count));
        if (written >= 0 || errno != EINTR)
            break;
    }
    return written;
}

void KSSerialPort::_post(std::function<void(KSSerialPort&)> message)
{
    const std::lock_guard messageLock(_messageLock);
    if (_postsMessages)
        postToMainThread([port = _self.lock(), message = std::move(message)] { message(*port); });
}

void KSSerialPort::_postData(const QByteArray& data)
{
    _post([data](KSSerialPort& port) {
        if (port._delegateHandlesReadInBackground)
            port._delegate->serialPortReadData({.serialPort = port, .data = data});
    });
}

void KSSerialPort::_postProgress(qint64 value, qint64 total)
{
    _post([value, total](KSSerialPort& port) {
        if (port._delegateHandlesWriteInBackground)
            port._delegate->serialPortWriteProgress({.serialPort = port, .value = value, .total = total});
    });
}

} // namespace ridelog
