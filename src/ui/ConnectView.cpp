#include "ui/ConnectView.h"

#include "device/KSSerialPortList.h"
#include "device/OdoCom.h"
#include "ui/BusySpinner.h"
#include "ui/ManualHelp.h"
#include "ui/SimulatedDevice.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <chrono>

namespace ridelog {
namespace {

using namespace std::chrono_literals;

constexpr auto refreshEvery = 2s;
constexpr int contentWidth = 200;

} // namespace

ConnectView::ConnectView(SimulatedDevice& simulatedDevice, QWidget* parent)
    : QWidget(parent),
      _simulatedDevice(simulatedDevice),
      _portsPopUp(new QComboBox),
      _connectButton(new QPushButton(tr("&Connect"))),
      _troubleButton(new QPushButton(tr("Trou&ble with the Port…"))),
      _progressIndicatorSpin(new BusySpinner),
      _progressIndicatorBar(new QProgressBar),
      _state(new QLabel)
{
    // The height follows from what it says.
    setMinimumWidth(contentWidth);
    _portsPopUp->setAccessibleName(tr("Serial port"));
    _portsPopUp->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    _portsPopUp->setMinimumContentsLength(16);
    // For names that are longer than the box.
    connect(_portsPopUp, &QComboBox::currentTextChanged, _portsPopUp, &QWidget::setToolTip);
    _connectButton->setCheckable(true);
    _progressIndicatorBar->setRange(0, static_cast<int>(OdoCom::wholeDump));
    _progressIndicatorBar->setAccessibleName(tr("Progress of the transfer"));
    _state->setWordWrap(true);
    _state->setTextInteractionFlags(Qt::TextSelectableByMouse);
    _state->setTextFormat(Qt::PlainText);
    auto* help =
        new QLabel(tr("Press Connect, wait for the line above to say that it is waiting, and then start "
                      "sending from the device's own menu. A transfer takes about 85 seconds."));
    help->setWordWrap(true);

    setManualSection(*this, QStringLiteral("device.html"));
    setManualSection(*_troubleButton, QStringLiteral("trouble.html"));
    connect(_troubleButton, &QPushButton::clicked, this, [this] { askForManual(*_troubleButton); });

    auto* portLabel = new QLabel(tr("Serial &port:"));
    portLabel->setBuddy(_portsPopUp);
    auto* connecting = new QHBoxLayout;
    connecting->addWidget(_connectButton, 1);
    connecting->addWidget(_progressIndicatorSpin);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(portLabel);
    layout->addWidget(_portsPopUp);
    layout->addLayout(connecting);
    layout->addWidget(_progressIndicatorBar);
    layout->addWidget(_state);
    layout->addSpacing(8);
    layout->addWidget(help);
    layout->addSpacing(8);
    layout->addWidget(_troubleButton);
    layout->addStretch();

    connect(&_simulatedDevice, &SimulatedDevice::changed, this, &ConnectView::refreshPorts);
    _refresh.setInterval(refreshEvery);
    _refresh.callOnTimeout(this, [this] { refreshPorts(); });
}

QString ConnectView::selectedPort() const
{
    return _portsPopUp->currentData().toString();
}

void ConnectView::selectPort(const QString& path)
{
    if (const auto index = _portsPopUp->findData(path); index >= 0)
        _portsPopUp->setCurrentIndex(index);
}

QString ConnectView::nameOf(const QString& path) const
{
    if (path == _simulatedDevice.path())
        return tr("Simulated device (%1)").arg(path);
    const auto product = KSSerialPortList::sharedPortList()->productAtPath(path);
    return product.isEmpty() ? path : QStringLiteral("%1 (%2)").arg(product, path);
}

void ConnectView::refreshPorts()
{
    const auto list = KSSerialPortList::sharedPortList();
    list->init();
    QStringList paths;
    for (const auto& port : list->getPortList())
        paths << port->bsdPath();
    if (_simulatedDevice.isPluggedIn())
        paths << _simulatedDevice.path();

    QStringList shown;
    for (int index = 0; index < _portsPopUp->count(); ++index)
        shown << _portsPopUp->itemData(index).toString();
    // An open list must not be changed under the hand that chooses from it.
    if (paths == shown || _portsPopUp->view()->isVisible())
        return;
    const auto selected = selectedPort();
    _portsPopUp->clear();
    for (const auto& path : std::as_const(paths))
        _portsPopUp->addItem(nameOf(path), path);
    _portsPopUp->setPlaceholderText(paths.isEmpty() ? tr("No serial port found") : QString());
    selectPort(selected);
}

void ConnectView::setState(const QString& state)
{
    _state->setText(state);
}

QString ConnectView::state() const
{
    return _state->text();
}

void ConnectView::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    _refresh.start();
}

void ConnectView::hideEvent(QHideEvent* event)
{
    _refresh.stop();
    QWidget::hideEvent(event);
}

} // namespace ridelog
