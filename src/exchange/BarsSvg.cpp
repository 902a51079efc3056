#include "exchange/BarsSvg.h"

#include "exchange/HtmlPage.h"
#include "exchange/ReportAxis.h"
#include "exchange/SvgText.h"
#include "library/DefaultsKeys.h"
#include "platform/Defaults.h"

#include <algorithm>
#include <cmath>

namespace ridelog {
namespace {

constexpr double width = 480;
constexpr double height = 240;
constexpr double left = 56;
constexpr double right = 472;
constexpr double top = 28;
constexpr double bottom = 212;
constexpr double textHeight = 4; ///< from the middle of a line of digits to its foot
constexpr double characterWidth = 7;
constexpr double barPart = 0.7; ///< of its column
constexpr double widestBar = 48;
constexpr int mostSteps = 5;

/// Of so many names of parts there is room for one.
std::size_t nameStep(Period period, const std::vector<PeriodPart>& parts, double column)
{
    qsizetype longest = 0;
    for (const auto& part : parts)
        longest = std::max(longest, shortPartName(period, part.firstDay).size());
    const auto names = (static_cast<double>(longest) + 1) * characterWidth / column;
    return static_cast<std::size_t>(roundStep(std::max(names, 1.0)));
}

/// The class of the page's style that has its colour.
QByteArray colourClass(StatQuantity quantity)
{
    const auto key = colourKeyOf(quantity);
    return key == DefaultsKeys::colorAltitude ? "altitude"
           : key == DefaultsKeys::colorPulse  ? "pulse"
                                              : "speed";
}

} // namespace

QByteArray barsSvg(Period period, const std::vector<PeriodPart>& parts, StatQuantity quantity,
                   const Defaults& defaults)
{
    const ReadableUnits units(defaults.boolForKey(DefaultsKeys::useMiles));
    const auto shown = [&](const PeriodPart& part) {
        const auto value = valueOf(quantity, part.statistics, units);
        return std::isfinite(value) ? std::max(value, 0.0) : 0.0;
    };
    double highest = 0;
    for (const auto& part : parts)
        highest = std::max(highest, shown(part));
    const ReportAxis axis(axisValuesOf(quantity), 0, highest, mostSteps);
    const auto yOf = [](double part) { return bottom - (bottom - top) * part; };

    const auto title = nameWithUnit(quantity, units);
    auto svg = svgBegin(width, height, title) + svgText("begin", left, 16, title);
    QByteArray grid;
    for (const auto& tic : axis.tics()) {
        grid += horizontalLine(left, yOf(tic.part), right - left);
        svg += svgText("end", left - 6, yOf(tic.part) + textHeight, tic.label);
    }
    svg += "<path class=\"grid\" d=\"" + grid + "\"/>\n";

    const auto column = (right - left) / static_cast<double>(std::max<std::size_t>(parts.size(), 1));
    const auto barWidth = std::min(column * barPart, widestBar);
    const auto step = nameStep(period, parts, column);
    for (std::size_t index = 0; index < parts.size(); ++index) {
        const auto& part = parts[index];
        const auto middle = left + column * (static_cast<double>(index) + 0.5);
        if (index % step == 0)
            svg += svgText("middle", middle, bottom + 18, shortPartName(period, part.firstDay));
        const auto barTop = yOf(axis.partOf(shown(part)));
        svg += "<rect class=\"dot " + colourClass(quantity) + "\" " +
               svgBox(middle - barWidth / 2, barTop, barWidth, bottom - barTop) + "><title>" +
               escaped(longPartName(period, part.firstDay) + QStringLiteral(": ") +
                       textOf(quantity, part.statistics, defaults)) +
               "</title></rect>\n";
    }
    return svg + "<path class=\"base\" d=\"" + horizontalLine(left, bottom, right - left) + "\"/>\n</svg>\n";
}

} // namespace ridelog
