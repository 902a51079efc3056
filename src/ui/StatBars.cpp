#include "ui/StatBars.h"

#include "chart/ChartPaper.h"
#include "library/DefaultsKeys.h"
#include "platform/Defaults.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>

namespace ridelog {

StatBars::StatBars(Period period, const OdoStat& stat, StatQuantity quantity, const Defaults& defaults)
    : _period(period),
      _chosen(stat.date().date()),
      _periodTitle(periodTitle(period, _chosen, stat.weekRule(), QLocale())),
      _quantity(quantity),
      _defaults(&defaults),
      _parts(partsOf(period, stat))
{
}

BarChart StatBars::chart() const
{
    const ReadableUnits units(_defaults->boolForKey(DefaultsKeys::useMiles));
    const auto colour = _defaults->colourForKey(colourKeyOf(_quantity)).value_or(ColourComponents());
    BarChart chart{.title = QStringLiteral("%1 – %2").arg(_periodTitle, nameWithUnit(_quantity, units)),
                   .values = axisValuesOf(_quantity),
                   .color = chartColor(colour)};
    // Every tour takes its time.
    const auto isEmpty = [](const PeriodPart& part) { return part.statistics.duration == 0; };
    if (std::ranges::all_of(_parts, isEmpty))
        chart.note = QCoreApplication::translate("StatBars", "No tours");
    for (const auto& [firstDay, statistics] : _parts)
        chart.bars.push_back(
            {.label = shortPartName(_period, firstDay), .value = valueOf(_quantity, statistics, units)});
    return chart;
}

QString StatBars::textOf(int bar) const
{
    const auto& [firstDay, statistics] = part(bar);
    return QStringLiteral("%1: %2").arg(longPartName(_period, firstDay),
                                        ridelog::textOf(_quantity, statistics, *_defaults));
}

QString StatBars::pictureName() const
{
    return QCoreApplication::translate("StatBars", "Statistics %1 %2", "period and quantity")
        .arg(_periodTitle, nameOf(_quantity));
}

QDate StatBars::firstDayOf(int bar) const
{
    return part(bar).firstDay;
}

std::optional<int> StatBars::chosenBar() const
{
    const auto next = std::ranges::upper_bound(_parts, _chosen, {}, &PeriodPart::firstDay);
    if (next == _parts.begin())
        return std::nullopt;
    const auto bar = static_cast<int>(next - _parts.begin()) - 1;
    // Years end with that of the last tour.
    if (firstDayOf(bar).year() != _chosen.year())
        return std::nullopt;
    return bar;
}

} // namespace ridelog
