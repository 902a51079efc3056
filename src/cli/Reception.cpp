#include "cli/Reception.h"

#include "cli/StopSignals.h"
#include "device/PortProblem.h"

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

Reception::Reception(const Wish& wish) : _wish(wish), _session(wish.port, wish.stopBits)
{
    _session.setDelegate(this);
    _redraw.callOnTimeout([this] { showProgress(); });
    if (_wish.patience) {
        _patience.setSingleShot(true);
        _patience.setInterval(std::chrono::milliseconds(std::llround(*_wish.patience * 1000)));
        _patience.callOnTimeout(
            [this] { end(whyTransferFellSilent(dump().size(), OdoCom::wholeDump, *_wish.patience)); });
    }
}

QString Reception::run()
{
    const StopSignals signals_([this] {
        _session.stopReading();
        end(whyTransferWasStopped(dump().size(), OdoCom::wholeDump));
    });
    if (!_session.startReading())
        return whyPortFailed(_wish.port, _session.openError());
    _bar.emplace();
    _bar->wait(QStringLiteral("Waiting for the device at %1 (Ctrl-C ends it)").arg(_wish.port));
    if (_wish.patience)
        _patience.start();
    if (!_failure)
        _loop.exec();
    _bar.reset();
    return *_failure;
}

void Reception::end(const QString& failure)
{
    if (!_failure)
        _failure = failure;
    _loop.quit();
}

void Reception::handleTransferStarted()
{
    _sinceStart.start();
    _redraw.start(redrawEvery);
}

void Reception::handleTransferProgress(std::int32_t)
{
    if (_wish.patience)
        _patience.start();
}

void Reception::handleTransferFinished()
{
    end(QString());
}

void Reception::handleTransferBrokenOff()
{
    end(whyTransferBrokeOff(dump().size(), OdoCom::wholeDump));
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
