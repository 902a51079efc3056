#include "ui/StatBars.h"

#include "chart/ChartPaper.h"
#include "chart/ChartSettings.h"
#include "format/ReadableUnits.h"
#include "format/TimeFormatter.h"
#include "format/UnitFormatters.h"
#include "library/DefaultsKeys.h"
#include "platform/Defaults.h"
#include "ui/TourTexts.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>

namespace ridelog {
namespace {

using Values = const PeriodStatistics&;
using Units = const ReadableUnits&;

/// All that there is to know of a quantity.
struct Traits {
    const char* name;
    BarChart::Values kind;
    ColourComponents ChartSettings::*colour; ///< of the series that it comes from, or that suits it
    QString (*unit)(Units units);
    double (*value)(Values values, Units units);
    QString (*text)(Values values, const Defaults& defaults); ///< without the unit
};

QString noUnit(Units)
{
    return {};
}

QString distanceText(Values values, const Defaults& defaults)
{
    return UnitFormatters::statistics(defaults).stringForObjectValue(values.distance);
}

QString durationText(Values values, const Defaults&)
{
    return TimeFormatter().stringForObjectValue(values.duration);
}

QString elevationGainText(Values values, const Defaults& defaults)
{
    return UnitFormatters::altitude(defaults).stringForObjectValue(
        static_cast<qlonglong>(values.elevationGain));
}

QString heartBeatsText(Values values, const Defaults&)
{
    return countText(values.heartBeats);
}

/// In the order of the quantities.
const std::array allTraits{
    Traits{.name = QT_TRANSLATE_NOOP("StatBars", "Distance"),
           .kind = BarChart::Values::numbers,
           .colour = &ChartSettings::speedColor,
           .unit = [](Units units) { return units.distanceUnit(); },
           .value = [](Values values, Units units) { return units.distance(values.distance); },
           .text = distanceText},
    Traits{.name = QT_TRANSLATE_NOOP("StatBars", "Time"),
           .kind = BarChart::Values::seconds,
           .colour = &ChartSettings::speedColor,
           .unit = noUnit,
           .value = [](Values values, Units) { return values.duration; },
           .text = durationText},
    Traits{.name = QT_TRANSLATE_NOOP("StatBars", "Elevation Gain"),
           .kind = BarChart::Values::wholeNumbers,
           .colour = &ChartSettings::altitudeColor,
           .unit = [](Units units) { return units.altitudeUnit(); },
           .value = [](Values values, Units units) { return units.altitude(values.elevationGain); },
           .text = elevationGainText},
    Traits{.name = QT_TRANSLATE_NOOP("StatBars", "Heart Beats"),
           .kind = BarChart::Values::wholeNumbers,
           .colour = &ChartSettings::pulseColor,
           .unit = noUnit,
           .value = [](Values values, Units) { return static_cast<double>(values.heartBeats); },
           .text = heartBeatsText},
};

const Traits& traitsOf(StatQuantity quantity)
{
    return allTraits[static_cast<std::size_t>(quantity)];
}

ReadableUnits unitsOf(const Defaults& defaults)
{
    return ReadableUnits(defaults.boolForKey(DefaultsKeys::useMiles));
}

/// As short as it can be below a bar.
QString shortName(Period period, QDate firstDay)
{
    const QLocale locale;
    switch (period) {
    case Period::all:
        return QString::number(firstDay.year());
    case Period::year:
        return locale.standaloneMonthName(firstDay.month(), QLocale::ShortFormat);
    case Period::month:
        return QString::number(firstDay.day());
    case Period::week:
        break;
    }
    return QStringLiteral("%1 %2").arg(locale.standaloneDayName(firstDay.dayOfWeek(), QLocale::ShortFormat),
                                       QString::number(firstDay.day()));
}

QString longName(Period period, QDate firstDay)
{
    if (period == Period::all)
        return periodTitle(Period::year, firstDay, {}, QLocale());
    if (period == Period::year)
        return periodTitle(Period::month, firstDay, {}, QLocale());
    return QLocale().toString(firstDay, QLocale::LongFormat);
}

} // namespace

QString nameOf(StatQuantity quantity)
{
    return QCoreApplication::translate("StatBars", traitsOf(quantity).name);
}

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
    const auto& traits = traitsOf(_quantity);
    const auto units = unitsOf(*_defaults);
    const auto unit = traits.unit(units);
    const auto settings = ChartSettings::fromDefaults(*_defaults);
    auto title = QStringLiteral("%1 – %2").arg(_periodTitle, nameOf(_quantity));
    if (!unit.isEmpty())
        title += QStringLiteral(" (%1)").arg(unit);
    BarChart chart{.title = title, .values = traits.kind, .color = chartColor(settings.*traits.colour)};
    // Every tour takes its time.
    const auto isEmpty = [](const PeriodPart& part) { return part.statistics.duration == 0; };
    if (std::ranges::all_of(_parts, isEmpty))
        chart.note = QCoreApplication::translate("StatBars", "No tours");
    for (const auto& [firstDay, statistics] : _parts)
        chart.bars.push_back(
            {.label = shortName(_period, firstDay), .value = traits.value(statistics, units)});
    return chart;
}

QString StatBars::textOf(int bar) const
{
    const auto& traits = traitsOf(_quantity);
    const auto& [firstDay, statistics] = part(bar);
    const auto unit = traits.unit(unitsOf(*_defaults));
    return QStringLiteral("%1: %2 %3")
        .arg(longName(_period, firstDay), traits.text(statistics, *_defaults), unit)
        .trimmed();
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
