#include "chart/BarChartView.h"

#include "chart/BarDrawing.h"
#include "chart/ChartAccessibility.h"
#include "chart/ChartPaper.h"
#include "chart/FocusFrame.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace ridelog {

BarChartView::BarChartView(QWidget* parent) : QWidget(parent)
{
    // Every repaint begins with white paper, in a dark theme as well.
    setAttribute(Qt::WA_OpaquePaintEvent);
    presentChartsAsSuch();
    setAccessibleName(tr("Bar chart"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
}

void BarChartView::setChart(const BarChart& chart, std::optional<int> current)
{
    _current = current;
    scale(chart);
}

void BarChartView::scale(const BarChart& chart)
{
    _scaling = BarScaling(chart, size(), chartLabelMeasure());
    showMark();
}

std::optional<int> BarChartView::markedBar() const
{
    if (_mouse) {
        if (const auto bar = _scaling.barAt(*_mouse))
            return bar;
    }
    return hasFocus() ? _current : std::nullopt;
}

void BarChartView::showMark()
{
    update();
    Q_EMIT pointedAt(markedBar());
}

PictureContent BarChartView::picture(QSize size) const
{
    return {.size = size, .description = chart().title, .draw = [chart = chart(), size](QPainter& painter) {
                drawBars(painter, BarScaling(chart, size, chartLabelMeasure()));
            }};
}

void BarChartView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    drawBars(painter, _scaling, markedBar());
    if (hasFocus())
        drawFocusFrame(painter, *this);
}

void BarChartView::resizeEvent(QResizeEvent*)
{
    scale(chart());
}

// Mouse

void BarChartView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        _pressed = _scaling.barAt(event->position());
}

/// Only where it was pressed: who has moved away wants something else.
void BarChartView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const auto pressed = std::exchange(_pressed, std::nullopt);
    if (pressed && pressed == _scaling.barAt(event->position()))
        Q_EMIT chosen(*pressed);
}

/// The first click of the two has led somewhere; the second one was not meant for the bar that is there now.
void BarChartView::mouseDoubleClickEvent(QMouseEvent*)
{
    _pressed.reset();
}

void BarChartView::mouseMoveEvent(QMouseEvent* event)
{
    _mouse = event->position();
    showMark();
}

void BarChartView::leaveEvent(QEvent*)
{
    _mouse.reset();
    showMark();
}

// Keys

/// The bar that a key leads to; none for other keys.
std::optional<int> BarChartView::barAfterKey(int key) const
{
    const int last = _scaling.count() - 1;
    switch (key) {
    case Qt::Key_Left:
        return std::max(_current.value_or(last + 1) - 1, 0);
    case Qt::Key_Right:
        return std::min(_current.value_or(-1) + 1, last);
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return last;
    default:
        return std::nullopt;
    }
}

void BarChartView::keyPressEvent(QKeyEvent* event)
{
    const bool isPlain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const bool chooses =
        event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space;
    if (!isPlain || _scaling.count() == 0) {
        QWidget::keyPressEvent(event);
    } else if (const auto bar = barAfterKey(event->key())) {
        // The mouse lies somewhere; what is pressed counts.
        _mouse.reset();
        _current = bar;
        showMark();
    } else if (const auto marked = markedBar(); marked && chooses && !event->isAutoRepeat()) {
        Q_EMIT chosen(*marked);
    } else {
        QWidget::keyPressEvent(event);
    }
}

void BarChartView::focusInEvent(QFocusEvent*)
{
    showMark();
}

void BarChartView::focusOutEvent(QFocusEvent*)
{
    showMark();
}

} // namespace ridelog
