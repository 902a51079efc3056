#include "cli/Reception.h"

#include "device/PortProblem.h"

#include <QCoreApplication>
#include <QLocale>

#include <chrono>
#include <cmath>

namespace ridelog {
namespace {

using namespace std::chrono_literals;

constexpr auto redrawEvery = 200ms;

/// "45 s", "1 min 20 s".
QString roughly(double seconds)
{
    const auto whole = std::llround(std::ceil(seconds));
    return whole < 60 ? QStringLiteral("%1 s").arg(whole)
                      : QStringLiteral("%1 min %2 s").arg(whole / 60).arg(whole % 60);
}

} // namespace

Reception::Reception(const Request& request) : _request(request), _session(request.port, request.stopBits)
{
    _session.setDelegate(this);
    _redraw.callOnTimeout([this] { showProgress(); });
    if (_request.patience) {
        _patience.setSingleShot(true);
        _patience.setTimerType(Qt::PreciseTimer);
        _patience.setInterval(std::chrono::milliseconds(std::llround(*_request.patience * 1000)));
        _patience.callOnTimeout([this] { endIfSilent(); });
    }
}

QString Reception::run()
{
    if (!_session.startReading())
        return whyPortFailed(_request.port, _session.openError());
    _bar.emplace();
    _bar->wait(QStringLiteral("Waiting for the device at %1 (Ctrl-C ends it)").arg(_request.port));
    if (_request.patience)
        _patience.start();
    if (!_end)
        _loop.exec();
    // What has been read from the line but not been added yet counts as well.
    _session.stopReading();
    _session.port()->close();
    QCoreApplication::sendPostedEvents();
    _bar.reset();
    return dump().size() >= OdoCom::wholeDump ? QString() : reason();
}

void Reception::end(End how)
{
    if (!_end)
        _end = how;
    _redraw.stop();
    _patience.stop();
    _loop.quit();
}

/// A program that was halted itself finds that much time has passed, and the line full.
void Reception::endIfSilent()
{
    if (_session.port()->checkRead() == 1)
        _patience.start();
    else
        end(End::silent);
}

QString Reception::reason() const
{
    const auto received = dump().size();
    switch (*_end) {
    case End::silent:
        return whyTransferFellSilent(received, OdoCom::wholeDump, *_request.patience);
    case End::stopped:
        return whyTransferWasStopped(received, OdoCom::wholeDump);
    case End::brokenOff:
    case End::finished:
        break;
    }
    return whyTransferBrokeOff(received, OdoCom::wholeDump);
}

void Reception::handleTransferStarted()
{
    _sinceStart.start();
    _redraw.start(redrawEvery);
}

void Reception::handleTransferProgress(std::int32_t)
{
    if (_request.patience)
        _patience.start();
}

void Reception::showProgress()
{
    const auto received = static_cast<double>(dump().size());
    constexpr auto whole = static_cast<double>(OdoCom::wholeDump);
    const auto left = static_cast<double>(_sinceStart.elapsed()) / 1000 * (whole - received) / received;
    const QLocale english(QLocale::English);
    _bar->show(received / whole,
               QStringLiteral("%1 of %2 bytes, %3 left")
                   .arg(english.toString(dump().size()), english.toString(OdoCom::wholeDump), roughly(left)));
}

} // namespace ridelog
