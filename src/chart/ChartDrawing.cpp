#include "chart/ChartDrawing.h"

#include "chart/ChartLog.h"
#include "chart/ColumnExtents.h"
#include "chart/LineClip.h"
#include "model/ChartProviders.h"
#include "model/SeriesNames.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPolygonF>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace ridelog {
namespace {

constexpr float ticLength = 5;
constexpr float labelGap = 6; ///< between an axis and its labels
constexpr float leastGapBetweenLabels = 4;

/// A line with more of them is drawn by what can be seen of it in each column.
constexpr double mostPointsInColumn = 2;

/// Part of the pulse range that the zones outside of it are wide.
constexpr float outerZone = 0.3F;

struct XLabel {
    QString text;
    QSizeF size;
    float left;

    float right() const { return left + static_cast<float>(size.width()); }
};

/// Of so many labels one is drawn, so that there is room between them.
std::size_t labelStep(const std::vector<XLabel>& labels)
{
    std::size_t step = 1;
    for (std::size_t i = 0; i + step < labels.size();) {
        if (labels[i + step].left >= labels[i].right() + leastGapBetweenLabels) {
            i += step;
        } else {
            ++step;
            i = 0;
        }
    }
    return step;
}

/// Of the lines where `scaling`, which does nothing else, takes them.
ColumnExtents columnsOf(const QList<QPolygonF>& lines, const QTransform& scaling, int left, int count)
{
    ColumnExtents columns(left, count);
    for (const auto& line : lines) {
        columns.beginLine();
        for (const auto& point : line)
            columns.add(static_cast<float>(point.x() * scaling.m11() + scaling.dx()),
                        static_cast<float>(point.y() * scaling.m22() + scaling.dy()));
    }
    return columns;
}

/// Long lines where there are no pixels: up and down between the ends of what they cover in each column of a
/// quarter of a unit.
QList<QPolygonF> outlines(const QList<QPolygonF>& lines, float width)
{
    constexpr double perUnit = 4;
    const auto scaling = QTransform::fromScale(perUnit, 1);
    const auto columns = columnsOf(lines, scaling, 0, static_cast<int>(width * perUnit) + 1);
    QList<QPolygonF> outlines{QPolygonF()};
    double y = 0;
    double x = 0.5;
    for (const auto& extent : columns.extents()) {
        if (!extent.isEmpty()) {
            auto near = static_cast<double>(extent.least);
            auto far = static_cast<double>(extent.most);
            if (std::abs(far - y) < std::abs(near - y))
                std::swap(near, far);
            outlines.last() << QPointF(x / perUnit, near) << QPointF(x / perUnit, far);
            y = far;
        } else if (!outlines.last().isEmpty()) {
            outlines.append(QPolygonF());
        }
        ++x;
    }
    return outlines;
}

} // namespace

ChartDrawing::ChartDrawing(QPainter& painter, const ChartScaling::Chart& chart,
                           std::optional<float> indicator)
    : _painter(painter),
      _scaling(chart),
      _indicator(indicator),
      _seriesColor(chartAxisColor),
      _labelDescent(QFontMetricsF(chartLabelFont()).descent())
{
}

const ChartScaling& ChartDrawing::draw()
{
    qCDebug(lcChart, "[drawRect:(NSRect)rect]");
    const auto& chart = _scaling.chart();
    _painter.save();
    _painter.setFont(chartLabelFont());
    _scaling.calcValues();
    fillBackground();
    _scaling.calcXAxis();
    if (_scaling.hasPlot()) {
        for (const auto& name : chart.showNames) {
            if (name == SeriesNames::pulse && chart.settings.pulseDrawRange) {
                _scaling.calcYAxisForName(name);
                drawPulseRange();
            }
        }
        const auto xValues = chart.dataProvider ? chart.dataProvider->xValues() : std::vector<float>();
        for (qsizetype series = 0; series < chart.showNames.size(); ++series) {
            const auto& name = chart.showNames[series];
            _scaling.calcYAxisForName(name);
            if (series == 0) {
                drawYAxisForName(name, false);
                drawXAxis();
            } else if (_scaling.isOn2ndAxis(series)) {
                drawYAxisForName(name, true);
            }
            drawChartForName(name, xValues);
        }
    }
    _painter.restore();
    return _scaling;
}

void ChartDrawing::fillBackground()
{
    qCDebug(lcChart, "[fillBackground]");
    const auto& chart = _scaling.chart();
    _painter.fillRect(QRectF(0, 0, static_cast<double>(chart.width), static_cast<double>(chart.height)),
                      Qt::white);
}

void ChartDrawing::drawXAxis()
{
    qCDebug(lcChart, "[drawXAxis]");
    const auto axis = _scaling.xAxisPosition();
    drawHorizontal(_scaling.plotLeft(), _scaling.plotRight(), axis);
    std::vector<XLabel> labels;
    for (const auto& [position, text] : _scaling.xTics()) {
        drawVertical(position, axis - ticLength, axis);
        const auto size = _scaling.chart().measure(text);
        const auto width = static_cast<float>(size.width());
        // Centred under its tic, but inside the picture
        const auto rightmost = std::max(_scaling.chart().width - width, 0.0F);
        labels.push_back({text, size, std::clamp(position - width / 2, 0.0F, rightmost)});
    }
    const auto step = labelStep(labels);
    for (std::size_t i = 0; i < labels.size(); i += step) {
        const auto& [text, size, left] = labels[i];
        drawLabel(text, size, left, axis - static_cast<float>(size.height()) - labelGap,
                  static_cast<float>(size.width()));
    }
    drawXIndicator();
}

void ChartDrawing::drawYAxisForName(const QString& name, bool second)
{
    const auto& chart = _scaling.chart();
    qCDebug(lcChart, "[drawYAxisForName] %s %d", qUtf8Printable(name), second);
    qCDebug(lcChart, "%d", chart.settings.draw2ndAxis);
    const auto axis = second ? _scaling.secondAxisPosition() : _scaling.leftAxisPosition();
    const auto end = second ? axis + _scaling.secondChartOffsetX() - labelGap : axis - labelGap;
    const auto room = second ? end - axis - ticLength : end;
    for (const auto& [position, label] : _scaling.yTics(second)) {
        const auto size = chart.measure(label);
        const auto width = std::min(static_cast<float>(size.width()), room);
        drawLabel(label, size, end - width, position - static_cast<float>(size.height()) / 2, width);
        drawHorizontal(second ? axis : axis - ticLength, second ? axis + ticLength : axis, position);
    }
    drawVertical(axis, _scaling.plotBottom(), _scaling.plotTop());
}

void ChartDrawing::drawChartForName(const QString& name, const std::vector<float>& xValues)
{
    qCDebug(lcChart, "[drawChartForName]");
    const auto& chart = _scaling.chart();
    const auto& settings = chart.settings;
    // A series of another name is drawn in whatever colour the last one had.
    if (name == SeriesNames::altitude)
        _seriesColor = chartColor(settings.altitudeColor);
    else if (name == SeriesNames::speed)
        _seriesColor = chartColor(settings.speedColor);
    else if (name == SeriesNames::pulse)
        _seriesColor = chartColor(settings.pulseColor);
    if (xValues.empty())
        return;
    constexpr float beyondEnd = 1;
    constexpr float beyondTop = 5;
    const QRectF reach(QPointF(_scaling.plotLeft(), down(_scaling.plotTop() + beyondTop)),
                       QPointF(_scaling.plotRight() + beyondEnd, down(_scaling.plotBottom())));
    const auto points = viewPoints(xValues, chart.dataProvider->yValuesForName(name));
    const auto lines = clippedLine(points, reach);
    const bool isLong = static_cast<double>(points.size()) >
                        mostPointsInColumn * pixelsPerUnit() * static_cast<double>(chart.width);
    _painter.save();
    _painter.setClipRect(reach, Qt::IntersectClip);
    if (isLong && paintsPixels(_painter))
        drawColumns(lines);
    else
        drawLines(isLong ? outlines(lines, chart.width) : lines);
    _painter.restore();
}

/// Where the values stand in the picture, y downwards. One that is no place is left out.
QPolygonF ChartDrawing::viewPoints(const std::vector<float>& xValues, const std::vector<float>& yValues) const
{
    QPolygonF points;
    const auto count = std::min(xValues.size(), yValues.size());
    points.reserve(static_cast<qsizetype>(count));
    for (std::size_t i = 0; i < count; ++i) {
        const auto x = _scaling.calcRealXValueFrom(xValues[i]);
        const auto y = down(_scaling.calcRealYValueFrom(yValues[i]));
        if (std::isfinite(x) && std::isfinite(y))
            points.append({x, y});
    }
    return points;
}

void ChartDrawing::drawLines(const QList<QPolygonF>& lines)
{
    _painter.setRenderHint(QPainter::Antialiasing);
    _painter.setPen(QPen(_seriesColor, 1.0));
    for (const auto& line : lines) {
        // A line of more than a pixel's width is filled as one area, which takes the longer the more often it
        // crosses itself.
        if (paintsPixels(_painter) && pixelsPerUnit() > 1)
            drawStretches(line);
        else
            _painter.drawPolyline(line);
    }
}

void ChartDrawing::drawStretches(const QPolygonF& line)
{
    QList<QLineF> stretches;
    stretches.reserve(line.size());
    for (qsizetype i = 0; i + 1 < line.size(); ++i)
        stretches.append({line[i], line[i + 1]});
    _painter.drawLines(stretches);
}

/// A long line where there are pixels: a bar in each column, as high as a line covers of it that goes up or
/// down as far. Rows at its ends fade as far as it fills them, in a few steps, so that all of a step are
/// drawn at once.
void ChartDrawing::drawColumns(const QList<QPolygonF>& lines)
{
    const auto toDevice = _painter.deviceTransform();
    const auto area =
        toDevice.mapRect(QRectF(0, 0, static_cast<double>(_scaling.chart().width), 1)).toAlignedRect();
    const auto columns = columnsOf(lines, toDevice, area.left(), area.width());
    const auto lineWidth = static_cast<float>(pixelsPerUnit());
    const auto width = std::max(static_cast<int>(std::lround(lineWidth)), 1);

    constexpr int full = 4;
    std::array<QList<QRect>, full + 1> rows; ///< by how far they are filled
    auto left = area.left() - (width - 1) / 2;
    for (const auto& extent : columns.extents()) {
        if (!extent.isEmpty()) {
            const auto way = extent.most - extent.least;
            const auto edge = lineWidth * (std::hypot(1.0F, way) - way) / 2;
            const auto top = extent.least - edge;
            const auto bottom = extent.most + edge;
            const auto first = static_cast<int>(std::ceil(top));
            const auto end = static_cast<int>(std::floor(bottom));
            const auto step = [](float part) { return static_cast<std::size_t>(std::lround(part * full)); };
            rows[step(static_cast<float>(first) - top)].append({left, first - 1, width, 1});
            if (first < end)
                rows[full].append({left, first, width, end - first});
            rows[step(bottom - static_cast<float>(end))].append({left, end, width, 1});
        }
        ++left;
    }
    _painter.setWorldTransform(toDevice.inverted(), true);
    _painter.setPen(Qt::NoPen);
    for (std::size_t step = 1; step <= full; ++step) {
        auto color = _seriesColor;
        color.setAlphaF(color.alphaF() * static_cast<float>(step) / full);
        _painter.setBrush(color);
        _painter.drawRects(rows[step]);
    }
}

void ChartDrawing::drawPulseRange()
{
    qCDebug(lcChart, "[drawPulseRange]");
    const auto& settings = _scaling.chart().settings;
    const auto [least, most] = std::minmax(settings.minPulseRange, settings.maxPulseRange);
    const auto low = static_cast<float>(least);
    const auto high = static_cast<float>(most);
    const auto band = (high - low) * outerZone;
    const auto below = chartColor(settings.pulseBelowColor);
    const auto in = chartColor(settings.pulseInColor);
    const auto above = chartColor(settings.pulseAboveColor);
    const bool fades = settings.pulseUseGradient;
    drawZone(low - band, low + 1, below, fades ? in : below);
    drawZone(low, high, in, in);
    drawZone(high - 1, high + band, fades ? in : above, above);
}

void ChartDrawing::drawZone(float from, float to, const QColor& bottom, const QColor& top)
{
    const auto lower = _scaling.calcRealYValueFrom(from);
    const auto upper = _scaling.calcRealYValueFrom(to);
    drawGradient(QRectF(QPointF(_scaling.plotLeft(), lower), QPointF(_scaling.plotRight(), upper)), bottom,
                 top);
}

/// From the bottom; the rectangle's y goes upwards. Line by line where there are pixels, each with a colour.
void ChartDrawing::drawGradient(const QRectF& rect, const QColor& startColor, const QColor& endColor)
{
    const auto steps = static_cast<int>(std::clamp(rect.height(), 0.0, 1e9));
    qCDebug(lcChart, "height:%d", steps);
    const auto height = static_cast<double>(_scaling.chart().height);
    // As far as the lines reach, which are one high and stand half below and half above their place
    const QRectF area(rect.x(), height - rect.y() - steps + 0.5, rect.width(), steps);
    if (startColor == endColor) {
        if (steps > 0)
            fillCrisp(_painter, area.intersected(QRectF(area.x(), 0, area.width(), height)), startColor);
    } else if (!paintsPixels(_painter)) {
        QLinearGradient gradient(area.bottomLeft(), area.topLeft());
        gradient.setColorAt(0, startColor);
        gradient.setColorAt(1, endColor);
        _painter.fillRect(area.intersected(QRectF(area.x(), 0, area.width(), height)), gradient);
    } else {
        // A range far beyond the picture has any number of lines.
        const auto first = static_cast<int>(std::clamp(-rect.y() - 1, 0.0, 1e9));
        const auto last = static_cast<int>(std::min<double>(steps, std::max(height - rect.y() + 2, 0.0)));
        for (int line = first; line < last; ++line) {
            const auto color = colorByInterpolatingColor(endColor, startColor, line, steps);
            fillCrisp(_painter, QRectF(rect.x(), area.bottom() - line - 1, rect.width(), 1), color);
        }
    }
}

void ChartDrawing::drawXIndicator()
{
    if (!_indicator)
        return;
    qCDebug(lcChart, "[drawXIndicator]");
    const auto x = _scaling.calcRealXValueFrom(*_indicator);
    if (std::isfinite(x))
        drawVertical(x, _scaling.plotBottom(), _scaling.plotTop(), 2);
}

void ChartDrawing::drawHorizontal(float fromX, float toX, float y)
{
    fillCrisp(_painter, QRectF(QPointF(fromX, down(y) - 0.5), QPointF(toX, down(y) + 0.5)), chartAxisColor);
}

void ChartDrawing::drawVertical(float x, float fromY, float toY, float width)
{
    fillCrisp(_painter, QRectF(QPointF(x - width / 2, down(toY)), QPointF(x + width / 2, down(fromY))),
              chartAxisColor);
}

/// `bottom` is the lower edge of the label's box; a label wider than its room is made narrower.
void ChartDrawing::drawLabel(const QString& label, QSizeF size, float left, float bottom, float room)
{
    _painter.save();
    _painter.setPen(chartLabelColor);
    _painter.translate(left, down(bottom) - _labelDescent);
    if (size.width() > static_cast<double>(room) && room > 0)
        _painter.scale(static_cast<double>(room) / size.width(), 1);
    _painter.drawText(QPointF(), label);
    _painter.restore();
}

double ChartDrawing::pixelsPerUnit() const
{
    const auto scale = std::abs(_painter.deviceTransform().m11());
    return scale > 0 ? scale : 1.0;
}

} // namespace ridelog
