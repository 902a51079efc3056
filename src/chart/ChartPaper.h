#pragma once

#include "chart/ChartScaling.h"

#include <QColor>
#include <QFont>
#include <QRectF>

QT_FORWARD_DECLARE_CLASS(QPainter)

namespace ridelog {

// What all charts are drawn with.

inline const QColor chartAxisColor = Qt::red;
inline const QColor chartLabelColor = Qt::black;

/// The font of all labels of a chart, 12 view units high.
QFont chartLabelFont();
/// Whether there is a font with what labels consist of; without one they are empty boxes.
bool hasChartLabelFont();
/// Its measure, without a device: the same for a screen, a picture and a printer.
ChartScaling::LabelMeasure chartLabelMeasure();

QColor chartColor(const ColourComponents& colour);

/// The colour on the way from `withColor` to `a`, `basedOnProgress` of `outOfPossibleSteps` behind
/// `withColor`.
QColor colorByInterpolatingColor(const QColor& a, const QColor& withColor, int basedOnProgress,
                                 int outOfPossibleSteps);

/// Whether what is drawn with becomes pixels, and is not turned.
bool paintsPixels(const QPainter& painter);
/// Fills on the grid of the device's units, so that a line is neither blurred nor lost, and each as wide as
/// the others.
void fillCrisp(QPainter& painter, const QRectF& rect, const QColor& color);

} // namespace ridelog
