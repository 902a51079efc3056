#pragma once

#include <QWidget>

namespace ridelog {

/// The empty frame of a month calendar: a band for the month, one for the names of the days, and the body.
class RLCalendarView : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// Draws the frame into this rectangle.
    static void drawRect(QPainter& painter, const QRectF& rect);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace ridelog
