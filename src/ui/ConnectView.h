#pragma once

#include <QTimer>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QComboBox;
class QLabel;
class QProgressBar;
class QPushButton;
QT_END_NAMESPACE

namespace ridelog {

class BusySpinner;
class SimulatedDevice;

/// What the connect drawer holds: the serial ports of the machine, the button that listens at one of them,
/// and how far the transfer is. It does not transfer anything itself.
class ConnectView : public QWidget {
    Q_OBJECT

public:
    explicit ConnectView(SimulatedDevice& simulatedDevice, QWidget* parent = nullptr);

    QComboBox& portsPopUp() { return *_portsPopUp; }
    QPushButton& connectButton() { return *_connectButton; } ///< checked while a session listens
    QPushButton& troubleButton() { return *_troubleButton; } ///< leads to the manual
    BusySpinner& progressIndicatorSpin() { return *_progressIndicatorSpin; }
    QProgressBar& progressIndicatorBar() { return *_progressIndicatorBar; }

    /// Path of the selected port; empty without one.
    QString selectedPort() const;
    /// Does nothing if there is no such port.
    void selectPort(const QString& path);
    /// Scans the machine's ports again. A port that is still there stays selected.
    void refreshPorts();

    /// One line that says how things stand.
    void setState(const QString& state);
    QString state() const;

protected:
    // The list follows what is plugged in and taken out, as long as somebody sees it.
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    QString nameOf(const QString& path) const;

    SimulatedDevice& _simulatedDevice;
    QComboBox* _portsPopUp;
    QPushButton* _connectButton;
    QPushButton* _troubleButton;
    BusySpinner* _progressIndicatorSpin;
    QProgressBar* _progressIndicatorBar;
    QLabel* _state;
    QTimer _refresh;
};

} // namespace ridelog
