#include "exchange/SeriesSvg.h"

#include "exchange/RecordedValues.h"
#include "exchange/ReportAxis.h"
#include "exchange/SampleTexts.h"
#include "exchange/SvgText.h"
#include "format/ReadableUnits.h"
#include "library/DefaultsKeys.h"
#include "platform/Defaults.h"
#include "platform/NumberText.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <optional>
#include <span>
#include <vector>

namespace ridelog {
namespace {

constexpr double width = 720;
constexpr double left = 56;
constexpr double right = 704;
constexpr double titleHeight = 30; ///< above each plot
constexpr double axisHeight = 40;  ///< below the last one
constexpr double textHeight = 4;   ///< from the middle of a line of digits to its foot
constexpr int mostStepsOfX = 10;
constexpr double dotRadius = 20; ///< tenths of a unit
constexpr double tenths = 10;

using Values = std::vector<std::optional<double>>;

/// None for what is no number: a gap.
std::optional<double> finite(double value)
{
    return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

template <typename ValueOf>
Values valuesOf(const OdoTour& tour, const ValueOf& valueOf)
{
    Values values;
    values.reserve(tour.data().size());
    for (const auto& entry : tour.data())
        values.push_back(valueOf(entry));
    return values;
}

struct Extent {
    double least = 0;
    double greatest = 0;
};

/// None without a value.
std::optional<Extent> extentOf(const Values& values)
{
    std::optional<Extent> extent;
    for (const auto& value : values) {
        if (!value)
            continue;
        if (!extent)
            extent = {*value, *value};
        extent->least = std::min(extent->least, *value);
        extent->greatest = std::max(extent->greatest, *value);
    }
    return extent;
}

struct XAxis {
    QString name;
    ReportAxis axis;
    std::vector<int> places; ///< of the entries, in tenths
};

XAxis makeXAxis(const OdoTour& tour, const SampleTexts& texts, const ReadableUnits& units)
{
    auto name = QStringLiteral("%1 (%2)").arg(texts.name(SampleColumn::distance), units.distanceUnit());
    auto kind = AxisValues::numbers;
    auto values =
        valuesOf(tour, [&](const SeriesEntry& entry) { return finite(units.distance(entry.distance)); });
    auto extent = extentOf(values).value_or(Extent());
    if (extent.least == extent.greatest) {
        name = texts.name(SampleColumn::time);
        kind = AxisValues::seconds;
        values = valuesOf(tour, [](const SeriesEntry& entry) { return finite(entry.time); });
        extent = extentOf(values).value_or(Extent());
    }
    XAxis x{.name = name,
            .axis =
                ReportAxis(kind, extent.least, extent.greatest, mostStepsOfX, ReportAxis::End::atGreatest),
            .places = {}};
    x.places.reserve(values.size());
    for (const auto& value : values)
        x.places.push_back(static_cast<int>(
            std::lround((left + (right - left) * x.axis.partOf(value.value_or(extent.least))) * tenths)));
    return x;
}

/// Draws a series as lines between its gaps.
class SeriesPath {
public:
    void add(int x, int y)
    {
        if (_inRun == 0)
            move(x, y);
        else
            step(x - _x, y - _y);
        _x = x;
        _y = y;
        ++_inRun;
    }
    void addGap()
    {
        if (_inRun == 1) {
            // A line of one point is not drawn.
            _path.truncate(_runBegin);
            _dots.emplace_back(_x, _y);
        }
        _inRun = 0;
    }
    /// For the end of the series. `name` is the class of its colour.
    QByteArray svg(const char* name)
    {
        addGap();
        QByteArray svg;
        if (!_path.isEmpty())
            svg = QByteArray("<path class=\"line ") + name + "\" d=\"" + _path + "\"/>\n";
        for (const auto& [x, y] : _dots)
            svg += QByteArray("<circle class=\"dot ") + name + "\" cx=\"" + QByteArray::number(x) +
                   "\" cy=\"" + QByteArray::number(y) + "\" r=\"" + QByteArray::number(dotRadius) + "\"/>\n";
        return svg;
    }

private:
    void move(int x, int y)
    {
        _runBegin = _path.size();
        _path += 'M' + QByteArray::number(x) + ' ' + QByteArray::number(y);
    }
    /// From the last point: short, and without a sum of roundings, as the points are whole numbers.
    void step(int dx, int dy)
    {
        _path += _inRun == 1 ? 'l' : ' ';
        appendShortest(_path, dx);
        _path += ' ';
        appendShortest(_path, dy);
    }

    QByteArray _path;
    qsizetype _runBegin = 0;
    int _inRun = 0;
    int _x = 0;
    int _y = 0;
    std::vector<std::pair<int, int>> _dots;
};

/// One series.
struct Plot {
    const char* name; ///< the class of its colour
    QString title;
    Values values;
    double height;
    int mostSteps;
};

/// With its upper edge at `top`.
QByteArray plotSvg(const Plot& plot, const XAxis& x, double top)
{
    const auto extent = extentOf(plot.values).value_or(Extent());
    const ReportAxis axis(AxisValues::numbers, extent.least, extent.greatest, plot.mostSteps);
    const auto yOf = [&](double part) { return top + plot.height * (1 - part); };

    QByteArray grid;
    QByteArray labels;
    for (const auto& tic : axis.tics()) {
        grid += horizontalLine(left, yOf(tic.part), right - left);
        labels += svgText("end", left - 6, yOf(tic.part) + textHeight, tic.label);
    }
    for (const auto& tic : x.axis.tics())
        grid += verticalLine(left + (right - left) * tic.part, top, plot.height);

    SeriesPath path;
    for (std::size_t index = 0; index < plot.values.size(); ++index) {
        if (const auto& value = plot.values[index])
            path.add(x.places[index], static_cast<int>(std::lround(yOf(axis.partOf(*value)) * tenths)));
        else
            path.addGap();
    }
    return "<path class=\"grid\" d=\"" + grid + "\"/>\n" + labels +
           svgText("begin", left, top - 8, plot.title) + "<g transform=\"scale(.1)\">\n" +
           path.svg(plot.name) + "</g>\n";
}

std::vector<Plot> plotsOf(const OdoTour& tour, const SampleTexts& texts, const ReadableUnits& units)
{
    std::vector<Plot> plots;
    plots.push_back(
        {.name = "altitude places", // the line with a point of every entry
         .title = texts.name(SampleColumn::altitude),
         .values =
             valuesOf(tour, [&](const SeriesEntry& entry) { return finite(units.altitude(entry.altitude)); }),
         .height = 150,
         .mostSteps = 5});
    plots.push_back(
        {.name = "speed",
         .title = QStringLiteral("%1 (%2)").arg(texts.name(SampleColumn::speed), units.speedUnit()),
         .values = valuesOf(tour, [&](const SeriesEntry& entry) { return finite(units.speed(entry.speed)); }),
         .height = 96,
         .mostSteps = 4});
    auto pulses = valuesOf(
        tour, [](const SeriesEntry& entry) -> std::optional<double> { return recordedPulse(entry.pulse); });
    if (extentOf(pulses))
        plots.push_back({.name = "pulse",
                         .title = texts.name(SampleColumn::pulse),
                         .values = std::move(pulses),
                         .height = 96,
                         .mostSteps = 4});
    return plots;
}

} // namespace

QByteArray seriesSvg(const OdoTour& tour, const Defaults& defaults, const char* attributes)
{
    const SampleTexts texts(defaults);
    const ReadableUnits units(defaults.boolForKey(DefaultsKeys::useMiles));
    const auto x = makeXAxis(tour, texts, units);
    double top = 0;
    QByteArray plots;
    QStringList names;
    for (const auto& plot : plotsOf(tour, texts, units)) {
        top += titleHeight;
        plots += plotSvg(plot, x, top);
        top += plot.height;
        names << plot.title;
    }
    for (const auto& tic : x.axis.tics())
        plots += svgText("middle", left + (right - left) * tic.part, top + 16, tic.label);
    plots += svgText("middle", (left + right) / 2, top + 34, x.name);
    plots += "<path class=\"mark\" d=\"" + verticalLine(0, titleHeight, top - titleHeight) + "\"/>\n";
    const auto label = QCoreApplication::translate("SeriesSvg", "Chart over %1: %2", "x quantity, series")
                           .arg(x.name, names.join(QStringLiteral(", ")));
    return svgBegin(width, top + axisHeight, label, attributes) + plots + "</svg>\n";
}

} // namespace ridelog
