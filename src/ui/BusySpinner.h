#pragma once

#include <QBasicTimer>
#include <QWidget>

namespace ridelog {

/// Turns while something is awaited of which nobody knows how long it takes; takes room, but shows nothing
/// otherwise.
class BusySpinner : public QWidget {
    Q_OBJECT

public:
    explicit BusySpinner(QWidget* parent = nullptr);

    void startAnimation();
    void stopAnimation();
    bool isTurning() const { return _timer.isActive(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    QBasicTimer _timer;
    int _step = 0;
};

} // namespace ridelog
