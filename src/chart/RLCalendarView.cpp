#include "chart/RLCalendarView.h"

#include <QPaintEvent>
#include <QPainter>

namespace ridelog {

void RLCalendarView::drawRect(QPainter& painter, const QRectF& rect)
{
    painter.fillRect(rect, Qt::white);
    painter.setPen(QPen(Qt::blue, 1.0));
    painter.setBrush(Qt::NoBrush);
    const auto width = static_cast<float>(rect.width());
    const auto height = static_cast<float>(rect.height());
    const auto top = static_cast<float>(rect.top());
    // From the top, parts of the height
    float used = 0;
    for (const float part : {0.15F, 0.1F, 0.75F}) {
        // Within the rectangle: a line one wide is drawn to the right of and below its coordinates.
        painter.drawRect(QRectF(rect.left(), static_cast<double>(top + used * height),
                                static_cast<double>(width - 1), static_cast<double>(part * height - 1)));
        used += part;
    }
}

void RLCalendarView::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    drawRect(painter, event->rect());
}

} // namespace ridelog
