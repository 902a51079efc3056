#pragma once

#include <QRectF>

#include <functional>

QT_BEGIN_NAMESPACE
class QPainter;
class QString;
class QWidget;
QT_END_NAMESPACE

namespace ridelog {

class ChartArrayView;
class Defaults;
class OdoTour;

/// Draws a tour on one page, black on white: its title, its chart as the view shows it, its summary values
/// and its description, made smaller as far as it has to be. Units are points; what even then does not fit
/// ends in three dots.
void drawTourPage(QPainter& painter, QRectF page, const OdoTour& tour, const ChartArrayView& chart,
                  const Defaults& defaults);

/// Draws on a page, in points.
using PageDrawing = std::function<void(QPainter& painter, QRectF page)>;
/// Asks for a printer and prints one page. `tell` is called with what went wrong, in a sentence.
void askToPrint(QWidget& over, const QString& name, PageDrawing draw,
                std::function<void(const QString&)> tell);

} // namespace ridelog
