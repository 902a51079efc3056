#include "chart/FocusFrame.h"

#include <QPainter>
#include <QWidget>

namespace ridelog {

void drawFocusFrame(QPainter& painter, const QWidget& widget)
{
    constexpr int width = 2;
    painter.save();
    painter.setPen(QPen(widget.palette().color(QPalette::Highlight), width, Qt::SolidLine, Qt::SquareCap,
                        Qt::MiterJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(widget.rect()).adjusted(width / 2.0, width / 2.0, -width / 2.0, -width / 2.0));
    painter.restore();
}

} // namespace ridelog
