#pragma once

#include "chart/ChartPaper.h"

#include <QPolygonF>

#include <optional>

QT_FORWARD_DECLARE_CLASS(QPainter)

namespace ridelog {

/// Draws a chart: one pass. The painter's origin is the upper left corner of the chart, one view unit is one
/// of its units; axes and tics are laid on the grid of the device's units (of a screen, its pixels). Returns
/// the scaling of the pass, for the series drawn last.
///
/// Values outside of the axes are cut off. A series much longer than the picture is wide is drawn by how far
/// up and down it runs in each column of pixels, which looks the same.
class ChartDrawing {
public:
    /// `indicator` is the x value that is marked.
    ChartDrawing(QPainter& painter, const ChartScaling::Chart& chart, std::optional<float> indicator);

    const ChartScaling& draw();

private:
    void fillBackground();
    void drawXAxis();
    void drawYAxisForName(const QString& name, bool second);
    void drawChartForName(const QString& name, const std::vector<float>& xValues);
    QPolygonF viewPoints(const std::vector<float>& xValues, const std::vector<float>& yValues) const;
    void drawLines(const QList<QPolygonF>& lines);
    void drawStretches(const QPolygonF& line);
    void drawColumns(const QList<QPolygonF>& lines);
    void drawPulseRange();
    void drawZone(float from, float to, const QColor& bottom, const QColor& top);
    void drawGradient(const QRectF& rect, const QColor& startColor, const QColor& endColor);
    void drawXIndicator();

    void drawHorizontal(float fromX, float toX, float y);
    void drawVertical(float x, float fromY, float toY, float width = 1);
    void drawLabel(const QString& label, QSizeF size, float left, float bottom, float room);
    float down(float y) const { return _scaling.chart().height - y; }
    double pixelsPerUnit() const;

    QPainter& _painter;
    ChartScaling _scaling;
    std::optional<float> _indicator;
    QColor _seriesColor;
    double _labelDescent;
};

} // namespace ridelog
