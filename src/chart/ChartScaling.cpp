#include "chart/ChartScaling.h"

#include "chart/ChartLog.h"
#include "format/MultipFormatter.h"
#include "format/TimeFormatter.h"
#include "model/ChartProviders.h"
#include "model/SeriesNames.h"
#include "platform/NumberPattern.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>

namespace ridelog {

Q_LOGGING_CATEGORY(lcChart, "ridelog.chart")

namespace {

constexpr float verticalMargin = 25.0F; ///< below the plot, and above it
constexpr int mostYTics = 200;
constexpr float yTicSpacing = 20.0F;
constexpr float leastGapToTopTic = 12.0F;

float finite(float value)
{
    return std::isfinite(value) ? value : 0.0F;
}

/// Towards zero; a value that no integer holds ends at the last one.
std::int32_t truncated(float value)
{
    using Limits = std::numeric_limits<std::int32_t>;
    if (value >= 2147483648.0F)
        return Limits::max();
    if (value <= -2147483648.0F)
        return Limits::min();
    return std::isnan(value) ? 0 : static_cast<std::int32_t>(value);
}

float maxX(const NamedXYChartArray* provider)
{
    return provider ? finite(provider->maxX()) : 0.0F;
}

float maxY(const NamedXYChartArray* provider, const QString& name)
{
    return provider ? finite(provider->maxYForName(name)) : 0.0F;
}

float minY(const NamedXYChartArray* provider, const QString& name)
{
    return provider ? finite(provider->minYForName(name)) : 0.0F;
}

/// The distance between tics of an axis that ends at x, as far as there is room for them.
float baseTicDistance(float x)
{
    constexpr std::array<std::pair<float, float>, 4> steps{{{30, 1}, {70, 4}, {150, 10}, {500, 20}}};
    for (const auto& [upTo, distance] : steps) {
        if (x <= upTo)
            return distance;
    }
    return 60;
}

/// A bottom that is not 0 goes down to tens.
float roundedBottom(float bottom)
{
    const auto tens = std::trunc(bottom / 10.0F) * 10.0F;
    return bottom < 0 ? tens - 10.0F : tens;
}

/// A top that is not 0 goes up to the next multiple of ten above it.
float roundedTop(float top)
{
    const auto tens = std::trunc(top / 10.0F) * 10.0F + 0.0F; // -0 becomes 0
    return tens > top || top == 0 ? tens : tens + 10.0F;
}

/// Units for one data unit, 0 where there is nothing to be scaled or no room for it.
float factor(float units, float extent)
{
    return units > 0 && extent != 0 ? finite(units / extent) : 0.0F;
}

QString formatTimeString(std::int32_t seconds)
{
    qCDebug(lcChart, "[formatTimeString]");
    return TimeFormatter::text(seconds);
}

QString label(const MultipFormatter* formatter, const QVariant& value)
{
    return formatter ? formatter->stringForObjectValue(value) : value.toString();
}

} // namespace

float ChartScaling::plotBottom() const
{
    return verticalMargin;
}

float ChartScaling::plotTop() const
{
    return _chart.height - verticalMargin;
}

void ChartScaling::calcValues()
{
    const auto& names = _chart.showNames;
    qCDebug(lcChart, "[calcValues] %s", qUtf8Printable(names.join(u", ")));
    _draw2ndAxis = false;
    // Measured on the altitude, whatever is shown, and before it is rounded.
    const auto highest =
        truncated(_chart.settings.useManualRange ? _chart.settings.maxRange
                                                 : maxY(_chart.dataProvider, SeriesNames::altitude));
    const auto width = _chart.measure(label(_chart.formatterForYAxis, highest)).width();
    _chartOffsetX = static_cast<float>(width) + 10.0F;
    _2ndChartOffsetX = _chartOffsetX * 0.5F;
    if (names.indexOf(SeriesNames::speed) < 1)
        return;
    const auto fastest = maxY(_chart.dataProvider, SeriesNames::speed);
    static const NumberPattern wholeNumber(QStringLiteral("0"));
    const auto text = wholeNumber.text(static_cast<double>(fastest), QLocale::c());
    qCDebug(lcChart, "maxValText: %s %f", qUtf8Printable(text), static_cast<double>(fastest));
    _2ndChartOffsetX += static_cast<float>(_chart.measure(text).width());
    _draw2ndAxis = _chart.settings.draw2ndAxis;
}

void ChartScaling::calcXAxis()
{
    qCDebug(lcChart, "[calcXAxis]");
    const auto x = maxX(_chart.dataProvider);
    const auto width = _chart.width - _chartOffsetX - _2ndChartOffsetX;
    const auto spacing = _chart.useTimeFormatForX ? 50.0F : 20.0F;
    _majorXTicDistance = _chart.useTimeFormatForX ? 5.0F : baseTicDistance(x);
    if (x > 0 && width > 0) {
        const auto smallest = spacing / (width / x);
        while (smallest > _majorXTicDistance)
            _majorXTicDistance *= 2;
    }
    _xTicCount = std::max(truncated(x / _majorXTicDistance + 0.9F), 0);
    _maxXAxisValue = finite(static_cast<float>(_xTicCount) * _majorXTicDistance);
    _xFactor = factor(width, _maxXAxisValue);
}

void ChartScaling::calcYAxisForName(const QString& name)
{
    qCDebug(lcChart, "[calcYAxisForName]");
    _chartOffsetY = verticalMargin;
    const bool isAltitude = name == SeriesNames::altitude;
    if (isAltitude && _chart.settings.useManualRange) {
        _minYAxisValue = finite(_chart.settings.minRange);
        _maxYAxisValue = finite(_chart.settings.maxRange);
    } else {
        _minYAxisValue = isAltitude ? roundedBottom(minY(_chart.dataProvider, name)) : 0.0F;
        _maxYAxisValue = roundedTop(maxY(_chart.dataProvider, name));
    }
    _yFactor = factor(_chart.height - 2 * verticalMargin, _maxYAxisValue - _minYAxisValue);
}

double ChartScaling::calcXValueFromPoint(double x) const
{
    if (_xFactor == 0)
        return 0;
    return static_cast<double>((static_cast<float>(x) - _chartOffsetX) / _xFactor);
}

bool ChartScaling::isOn2ndAxis(qsizetype series) const
{
    return _draw2ndAxis && series > 0 && _chart.showNames[series] == SeriesNames::speed;
}

std::vector<ChartScaling::Tic> ChartScaling::xTics() const
{
    std::vector<Tic> tics;
    if (_xFactor == 0)
        return tics;
    std::int32_t value = 0;
    for (std::int32_t tic = 0; tic <= _xTicCount; ++tic) {
        tics.push_back({calcRealXValueFrom(static_cast<float>(tic) * _majorXTicDistance),
                        _chart.useTimeFormatForX
                            ? formatTimeString(value)
                            : label(_chart.formatterForXAxis, static_cast<float>(value))});
        value = truncated(static_cast<float>(value) + _majorXTicDistance);
    }
    return tics;
}

std::vector<ChartScaling::Tic> ChartScaling::yTics(bool second) const
{
    std::vector<Tic> tics;
    if (_yFactor == 0)
        return tics;
    const auto* formatter = second ? _chart.formatterForXAxis : _chart.formatterForYAxis;
    const auto step = yTicSpacing / _yFactor;
    const auto top = calcRealYValueFrom(_maxYAxisValue);
    auto value = _minYAxisValue;
    for (int tic = 0; tic < mostYTics; ++tic) {
        tics.push_back({calcRealYValueFrom(value), label(formatter, truncated(value))});
        value += step;
        if (top - calcRealYValueFrom(value) < leastGapToTopTic)
            break;
    }
    tics.push_back({top, label(formatter, _maxYAxisValue)});
    return tics;
}

} // namespace ridelog
