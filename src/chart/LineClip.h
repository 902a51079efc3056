#pragma once

#include <QLineF>
#include <QList>
#include <QPolygonF>
#include <QRectF>

namespace ridelog {

/// What of a line lies in a rectangle, as one polygon for each time that the line comes through it. Cut
/// exactly: a picture type that cannot clip shows nothing outside of it, and a line to a far point keeps its
/// slope.
QList<QPolygonF> clippedLine(const QPolygonF& line, const QRectF& to);

} // namespace ridelog
