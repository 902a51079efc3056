#include "chart/ChartDrawing.h"

#include "chart/ChartLog.h"
#include "chart/ColumnExtremes.h"
#include "chart/SeriesNames.h"
#include "model/ChartProviders.h"

#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace ridelog {
namespace {

const QColor axisColor = Qt::red;
const QColor labelColor = Qt::black;

constexpr float ticLength = 5;
constexpr float labelGap = 6; ///< between an axis and its labels
constexpr float leastGapBetweenLabels = 4;

/// Lines that lead further out are not told apart from ones that end here, in view units.
constexpr float farOutside = 20'000;

/// Part of the pulse range that the zones outside of it are wide.
constexpr float outerZone = 0.3F;

} // namespace

QFont chartLabelFont()
{
    QFont font(
        QStringList{QStringLiteral("Helvetica"), QStringLiteral("Liberation Sans"), QStringLiteral("Arial")});
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(12);
    return font;
}

QSizeF chartLabelSize(const QString& label)
{
    const QFontMetricsF metrics(chartLabelFont());
    return {metrics.horizontalAdvance(label), metrics.height()};
}

QColor chartColor(const ColourComponents& colour)
{
    const auto component = [](double value) { return static_cast<float>(std::clamp(value, 0.0, 1.0)); };
    return QColor::fromRgbF(component(colour.red), component(colour.green), component(colour.blue),
                            component(colour.alpha));
}

QColor colorByInterpolatingColor(const QColor& a, const QColor& withColor, int basedOnProgress,
                                 int outOfPossibleSteps)
{
    const auto part = static_cast<float>(basedOnProgress) / static_cast<float>(outOfPossibleSteps);
    const auto between = [part](float to, float from) { return from + (to - from) * part; };
    return QColor::fromRgbF(between(a.redF(), withColor.redF()), between(a.greenF(), withColor.greenF()),
                            between(a.blueF(), withColor.blueF()), between(a.alphaF(), withColor.alphaF()));
}

ChartDrawing::ChartDrawing(QPainter& painter, const ChartScaling::Chart& chart,
                           std::optional<float> indicator)
    : _painter(painter), _scaling(chart), _indicator(indicator), _seriesColor(labelColor)
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
                drawYAxis(false);
                drawXAxis();
            } else if (_scaling.isOn2ndAxis(series)) {
                drawYAxis(true);
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
    float lastRight = -leastGapBetweenLabels;
    for (const auto& [position, label] : _scaling.xTics()) {
        const auto size = _scaling.chart().measure(label);
        const auto width = static_cast<float>(size.width());
        // Centred under its tic, but inside the picture, and left out where its neighbour needs the room.
        const auto left =
            std::clamp(position - width / 2, 0.0F, std::max(_scaling.chart().width - width, 0.0F));
        if (left >= lastRight + leastGapBetweenLabels || lastRight < 0) {
            drawLabel(label, left, axis - static_cast<float>(size.height()) - labelGap, width);
            lastRight = left + width;
        }
    }
    drawHorizontal(_scaling.plotLeft(), _scaling.plotRight(), axis);
    for (const auto& tic : _scaling.xTics())
        drawVertical(tic.position, axis - ticLength, axis);
    drawXIndicator();
}

void ChartDrawing::drawYAxis(bool second)
{
    qCDebug(lcChart, "[drawYAxisForName] %d", second);
    const auto& chart = _scaling.chart();
    const auto axis = second ? _scaling.secondAxisPosition() : _scaling.leftAxisPosition();
    const auto end = second ? axis + _scaling.secondChartOffsetX() - labelGap : axis - labelGap;
    const auto room = second ? end - axis - ticLength : end;
    for (const auto& [position, label] : _scaling.yTics(second)) {
        const auto size = chart.measure(label);
        const auto width = std::min(static_cast<float>(size.width()), room);
        drawLabel(label, end - width, position - static_cast<float>(size.height()) / 2, width);
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
    const auto yValues = chart.dataProvider->yValuesForName(name);
    const auto columns = static_cast<float>(pixelsPerUnit());
    ColumnExtremes line(columns);
    const auto inReach = [](float value) { return std::clamp(value, -farOutside, farOutside); };
    for (std::size_t i = 0; i < std::min(xValues.size(), yValues.size()); ++i)
        line.add(inReach(_scaling.calcRealXValueFrom(xValues[i])),
                 inReach(down(_scaling.calcRealYValueFrom(yValues[i]))));

    _painter.save();
    constexpr float beyondEnd = 1;
    constexpr float beyondTop = 5;
    _painter.setClipRect(QRectF(QPointF(_scaling.plotLeft(), down(_scaling.plotTop() + beyondTop)),
                                QPointF(_scaling.plotRight() + beyondEnd, down(_scaling.plotBottom()))));
    _painter.setRenderHint(QPainter::Antialiasing);
    _painter.setPen(QPen(_seriesColor, 1.0));
    _painter.drawPolyline(line.points());
    _painter.restore();
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

/// Line by line from the bottom; the rectangle's y goes upwards.
void ChartDrawing::drawGradient(const QRectF& rect, const QColor& startColor, const QColor& endColor)
{
    const auto steps = static_cast<int>(std::clamp(rect.height(), 0.0, 1e9));
    qCDebug(lcChart, "height:%d", steps);
    // A range far beyond the picture has any number of lines.
    const auto height = static_cast<double>(_scaling.chart().height);
    const auto first = static_cast<int>(std::clamp(-rect.y() - 1, 0.0, 1e9));
    const auto last = static_cast<int>(std::min<double>(steps, std::max(height - rect.y() + 2, 0.0)));
    for (int line = first; line < last; ++line) {
        const auto color = colorByInterpolatingColor(endColor, startColor, line, steps);
        fillCrisp(QRectF(rect.x(), height - rect.y() - line - 0.5, rect.width(), 1), color);
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
    fillCrisp(QRectF(QPointF(fromX, down(y) - 0.5), QPointF(toX, down(y) + 0.5)), axisColor);
}

void ChartDrawing::drawVertical(float x, float fromY, float toY, float width)
{
    fillCrisp(QRectF(QPointF(x - width / 2, down(toY)), QPointF(x + width / 2, down(fromY))), axisColor);
}

/// `bottom` is the lower edge of the label's box; a label wider than its room is made narrower.
void ChartDrawing::drawLabel(const QString& label, float left, float bottom, float room)
{
    const QFontMetricsF metrics(chartLabelFont());
    const auto width = metrics.horizontalAdvance(label);
    _painter.save();
    _painter.setPen(labelColor);
    _painter.translate(left, down(bottom) - metrics.descent());
    if (width > static_cast<double>(room) && room > 0)
        _painter.scale(static_cast<double>(room) / width, 1);
    _painter.drawText(QPointF(), label);
    _painter.restore();
}

double ChartDrawing::pixelsPerUnit() const
{
    const auto scale = std::abs(_painter.worldTransform().m11()) * _painter.device()->devicePixelRatioF();
    return scale > 0 ? scale : 1.0;
}

/// With edges on the grid of pixels, so that a line is neither blurred nor lost.
void ChartDrawing::fillCrisp(const QRectF& rect, const QColor& color)
{
    const auto scale = pixelsPerUnit();
    const auto onGrid = [scale](double value) { return std::round(value * scale) / scale; };
    const auto left = onGrid(rect.left());
    const auto top = onGrid(rect.top());
    const auto right = std::max(onGrid(rect.right()), left + 1 / scale);
    const auto bottom = std::max(onGrid(rect.bottom()), top + 1 / scale);
    _painter.fillRect(QRectF(QPointF(left, top), QPointF(right, bottom)), color);
}

} // namespace ridelog
