#include "chart/BarScaling.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace ridelog {
namespace {

constexpr double margin = 8;
constexpr double roomForTic = 10; ///< and the gap between it and its label
constexpr double ticSpacing = 36; ///< at least
constexpr double mostTics = 10;   ///< above the bottom
constexpr double gapBetweenLabels = 6;
constexpr double barPart = 0.7; ///< of its column
constexpr double widestBar = 64;

/// No rider comes as far, and any number of them is still one that can be divided.
constexpr double mostValue = 1e15;

double shown(double value)
{
    return value > 0 ? std::min(value, mostValue) : 0.0;
}

} // namespace

BarScaling::BarScaling(BarChart chart, QSizeF size, const ChartScaling::LabelMeasure& measure)
    : _chart(std::move(chart)), _size(size)
{
    for (auto& bar : _chart.bars)
        bar.value = shown(bar.value);
    const auto labelHeight = measure(QStringLiteral("0")).height();
    const auto aboveAndBelow = 2 * labelHeight + 4 * margin;
    makeTics(std::max(size.height() - aboveAndBelow, 0.0));
    placePlot(measure, labelHeight);
}

/// In a plot of this height. They get their places with it.
void BarScaling::makeTics(double height)
{
    double highest = 0;
    for (const auto& bar : _chart.bars)
        highest = std::max(highest, bar.value);
    if (highest <= 0 || height <= 0)
        return;
    const auto most = std::clamp(std::floor(height / ticSpacing), 1.0, mostTics);
    const auto step = ticStep(_chart.values, highest / most);
    // A value of single precision that lies on a tic is not above it.
    const auto count = std::max(static_cast<int>(std::ceil(highest / step - 1e-6)), 1);
    _top = count * step;
    for (int tic = 0; tic <= count; ++tic)
        _tics.push_back(
            {.y = height - height * tic / count, .label = ticLabel(_chart.values, tic * step, step)});
}

void BarScaling::placePlot(const ChartScaling::LabelMeasure& measure, double labelHeight)
{
    double widestTic = 0;
    for (const auto& tic : _tics)
        widestTic = std::max(widestTic, measure(tic.label).width());
    const QPointF topLeft(margin + widestTic + roomForTic, labelHeight + 2 * margin);
    const QPointF bottomRight(_size.width() - margin, _size.height() - labelHeight - 2 * margin);
    _plot = QRectF(topLeft, QSizeF(std::max(bottomRight.x() - topLeft.x(), 0.0),
                                   std::max(bottomRight.y() - topLeft.y(), 0.0)));
    for (auto& tic : _tics)
        tic.y += _plot.top();

    double widest = 0;
    for (const auto& bar : _chart.bars)
        widest = std::max(widest, measure(bar.label).width());
    const auto room = _plot.width() / std::max(count(), 1);
    if (widest > 0 && room > 0)
        _labelStep = static_cast<int>(roundStep(std::clamp((widest + gapBetweenLabels) / room, 1.0, 1e6)));
}

QRectF BarScaling::columnOf(int bar) const
{
    const auto width = _plot.width() / std::max(count(), 1);
    return {_plot.left() + bar * width, _plot.top(), width, _plot.height()};
}

QRectF BarScaling::barOf(int bar) const
{
    const auto column = columnOf(bar);
    const auto part = _top > 0 ? std::min(_chart.bars[static_cast<std::size_t>(bar)].value / _top, 1.0) : 0.0;
    const auto height = column.height() * part;
    const auto width = std::min(column.width() * barPart, widestBar);
    return {column.center().x() - width / 2, column.bottom() - height, width, height};
}

std::optional<int> BarScaling::barAt(QPointF place) const
{
    const QRectF reach(_plot.topLeft(), QPointF(_plot.right(), _size.height()));
    if (count() == 0 || _plot.isEmpty() || !reach.contains(place))
        return std::nullopt;
    const auto columns = (place.x() - _plot.left()) / _plot.width() * count();
    return std::clamp(static_cast<int>(columns), 0, count() - 1);
}

} // namespace ridelog
