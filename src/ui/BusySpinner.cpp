#include "ui/BusySpinner.h"

#include <QPainter>
#include <QTimerEvent>

namespace ridelog {
namespace {

constexpr int spokes = 12;
constexpr int millisecondsPerStep = 80;

} // namespace

BusySpinner::BusySpinner(QWidget* parent) : QWidget(parent)
{
    const auto size = fontMetrics().height() + 4;
    setFixedSize(size, size);
}

void BusySpinner::startAnimation()
{
    _timer.start(millisecondsPerStep, this);
    update();
}

void BusySpinner::stopAnimation()
{
    _timer.stop();
    update();
}

void BusySpinner::timerEvent(QTimerEvent*)
{
    _step = (_step + 1) % spokes;
    update();
}

void BusySpinner::paintEvent(QPaintEvent*)
{
    if (!isTurning())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(rect().center() + QPointF(0.5, 0.5));
    const auto outside = width() / 2.0 - 1;
    auto color = palette().color(QPalette::WindowText);
    for (int spoke = 0; spoke < spokes; ++spoke) {
        const auto age = (_step - spoke + spokes) % spokes;
        color.setAlphaF(1 - static_cast<float>(age) / spokes);
        painter.setPen(QPen(color, outside / 5, Qt::SolidLine, Qt::RoundCap));
        painter.save();
        painter.rotate(spoke * 360.0 / spokes);
        painter.drawLine(QPointF(0, -outside / 2), QPointF(0, -outside));
        painter.restore();
    }
}

} // namespace ridelog
