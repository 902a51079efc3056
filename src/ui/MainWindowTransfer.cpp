// The way from the device into the document.

#include "device/PortProblem.h"
#include "library/DefaultsKeys.h"
#include "library/RawDump.h"
#include "platform/Defaults.h"
#include "ui/ApplicationWindows.h"
#include "ui/BusySpinner.h"
#include "ui/ConnectView.h"
#include "ui/MainWindowController.h"

#include <QAction>
#include <QComboBox>
#include <QCoreApplication>
#include <QDockWidget>
#include <QLineEdit>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>

#include <cmath>

namespace ridelog {
namespace {

OdoCom::StopBits stopBitsFrom(const Defaults& defaults)
{
    return defaults.boolForKey(DefaultsKeys::useAlternateTransferSettings) ? OdoCom::StopBits::two
                                                                           : OdoCom::StopBits::one;
}

/// What is said of what arrived, behind why no more did; empty if nothing was to be kept.
QString fateOf(const std::optional<KeptDump>& kept)
{
    if (!kept)
        return {};
    if (kept->error.isEmpty())
        return MainWindowController::tr("; what arrived is in %1").arg(kept->path);
    return MainWindowController::tr("; what arrived could not be kept in %1: %2")
        .arg(kept->path, kept->error);
}

} // namespace

// The drawer

/// With the port of the last time, but for who has just plugged in the simulated device.
void MainWindowController::fillPorts()
{
    _connectView->refreshPorts();
    if (isConnected())
        return;
    const auto& simulated = _windows.simulatedDevice();
    _connectView->selectPort(
        simulated.isPluggedIn()
            ? simulated.path()
            : _defaults.textForKey(DefaultsKeys::selectedInterfacePort).value_or(QString()));
}

/// For the next time. The simulated device is somewhere else then, and is not to take a real one's place.
void MainWindowController::storePort()
{
    const auto port = _connectView->selectedPort();
    if (!port.isEmpty() && port != _windows.simulatedDevice().path())
        _defaults.setValue(DefaultsKeys::selectedInterfacePort, port);
}

void MainWindowController::toggleConnectDrawer()
{
    _connectDrawer->setVisible(_connectDrawer->isHidden());
}

void MainWindowController::drawerDidChange()
{
    // A window that is minimised or closed hides the drawer with it, which nobody has closed.
    const bool isOpen = !_connectDrawer->isHidden();
    _transferButton->setChecked(isOpen);
    if (isOpen)
        fillPorts();
    else
        storePort();
    _defaults.setValue(DefaultsKeys::drawerOpen, isOpen);
}

void MainWindowController::tell(const QString& state)
{
    _connectView->setState(state);
    showMessage(state);
}

// The session

void MainWindowController::setConnected(bool connected)
{
    _connectView->connectButton().setChecked(connected);
    _connectView->connectButton().setText(connected ? tr("Dis&connect") : tr("&Connect"));
    _connectView->portsPopUp().setEnabled(!connected);
    _startTransferAction->setEnabled(!connected);
    _stopTransferAction->setEnabled(connected);
}

void MainWindowController::startTransfer()
{
    if (_connectDrawer->isHidden())
        toggleConnectDrawer();
    if (!isConnected())
        connectToOdo(true);
}

void MainWindowController::connectToOdo(bool connected)
{
    if (connected) {
        setConnected(true);
        _connectView->progressIndicatorBar().setValue(0);
        _connectView->progressIndicatorSpin().startAnimation();
        openPort();
    } else {
        endSession();
        tell(tr("Disconnected."));
    }
}

/// Where the port cannot be had the spinner goes on until the user lets go, and the line says why.
void MainWindowController::openPort()
{
    const auto port = _connectView->selectedPort();
    storePort();
    _isSimulated = !port.isEmpty() && port == _windows.simulatedDevice().path();
    _odoCom = std::make_unique<OdoCom>(port, stopBitsFrom(_defaults));
    _odoCom->setDelegate(this);
    if (_odoCom->startReading())
        tell(tr("Waiting for the device…"));
    else if (port.isEmpty())
        tell(tr("There is no serial port. Plug in the device's cable, or choose Device > Simulated Device."));
    else
        tell(tr("Cannot open %1: %2.").arg(port, whyPortFailed(port, _odoCom->openError())));
}

void MainWindowController::endSession()
{
    if (!_odoCom)
        return;
    _odoCom->stopReading();
    _odoCom->setDelegate(nullptr);
    _odoCom.reset();
    _connectView->progressIndicatorSpin().stopAnimation();
    setConnected(false);
}

void MainWindowController::stopTransfer()
{
    if (!isConnected())
        return;
    _odoCom->stopReading();
    // What was read from the line is on its way here, and belongs to what arrived.
    QCoreApplication::sendPostedEvents();
    if (!isConnected())
        return;
    const auto received = _odoCom->odoData();
    endSession();
    const auto kept = _isSimulated ? std::nullopt : keepStoppedDump(received);
    tell(tr("Transfer %1.").arg(whyTransferWasStopped(received.size(), OdoCom::wholeDump) + fateOf(kept)));
}

// What the session tells

void MainWindowController::handleTransferStarted()
{
    _sinceFirstBytes.start();
    _connectView->progressIndicatorSpin().stopAnimation();
    tell(tr("Receiving…"));
}

void MainWindowController::handleTransferProgress(std::int32_t bytes)
{
    auto& bar = _connectView->progressIndicatorBar();
    bar.setValue(std::min(bar.value() + bytes, bar.maximum()));
    // By itself it does not write the percent anew before there is a whole one more.
    bar.update();
    const auto state = receivingText();
    // With the drawer closed there is no bar.
    if (_connectDrawer->isHidden())
        tell(state);
    else
        _connectView->setState(state);
}

QString MainWindowController::receivingText() const
{
    const auto received = static_cast<double>(_odoCom->odoData().size());
    constexpr auto whole = static_cast<double>(OdoCom::wholeDump);
    const auto percent = QString::number(static_cast<int>(std::min(received / whole, 1.0) * 100));
    const auto elapsed = static_cast<double>(_sinceFirstBytes.elapsed()) / 1000;
    // Of the first bytes nothing can be told yet.
    if (elapsed < 1)
        return tr("Receiving, %1 %").arg(percent);
    const auto left = std::max(elapsed * (whole - received) / received, 0.0);
    return tr("Receiving, %1 %, %Ln second(s) left", "percentage", static_cast<int>(std::ceil(left)))
        .arg(percent);
}

void MainWindowController::handleTransferFinished()
{
    const auto dump = _odoCom->odoData();
    endSession();
    finishEditing();
    _searchField->clear();
    const auto import = _document.handleTransferFinished(dump, CalendarDate::now(),
                                                         _isSimulated ? MyDocument::RawDump::isNotKept
                                                                      : MyDocument::RawDump::asTheUserWants);
    _document.undoManager().closeGroup();
    _tourController.showNewestFirst();
    _connectView->progressIndicatorBar().setValue(0);
    tellMerged(import, tr("What arrived"));
}

void MainWindowController::handleTransferBrokenOff()
{
    const auto received = _odoCom->odoData();
    endSession();
    const auto reason = whyTransferBrokeOff(received.size(), OdoCom::wholeDump);
    const auto kept = _isSimulated ? std::nullopt : keepStoppedDump(received);
    tell(tr("Broken off: %1.").arg(reason + fateOf(kept)));
}

void MainWindowController::tellMerged(const MyDocument::Import& import, const QString& what)
{
    if (!import.refusal.isEmpty()) {
        const auto refused = tr("%1 is no dump of the device: %2").arg(what, import.refusal);
        tell(refused + fateOf(import.kept));
        return;
    }
    const auto finished =
        tr("Finished: %Ln tour(s) added, %1 already there", "number of tours", static_cast<int>(import.added))
            .arg(QLocale().toString(import.alreadyThere));
    // Where a dump is usually kept need not be said each time.
    const bool isNotKept = import.kept && !import.kept->error.isEmpty();
    tell(finished + (isNotKept ? fateOf(import.kept) : QString()) + u'.');
}

} // namespace ridelog
