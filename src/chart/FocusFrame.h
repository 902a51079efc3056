#pragma once

#include <qglobal.h>

QT_FORWARD_DECLARE_CLASS(QPainter)
QT_FORWARD_DECLARE_CLASS(QWidget)

namespace ridelog {

/// Shows that the widget gets the keys: a line around it. What styles draw would tint the paper of a chart.
void drawFocusFrame(QPainter& painter, const QWidget& widget);

} // namespace ridelog
