#include "exchange/StatQuantity.h"

#include "exchange/TourTexts.h"
#include "format/TimeFormatter.h"
#include "format/UnitFormatters.h"
#include "library/DefaultsKeys.h"
#include "platform/Defaults.h"

#include <QCoreApplication>
#include <QLocale>

namespace ridelog {
namespace {

using Values = const PeriodStatistics&;
using Units = const ReadableUnits&;

/// All that there is to know of a quantity.
struct Traits {
    const char* name;
    AxisValues kind;
    const QString& colourKey;
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
    Traits{.name = QT_TRANSLATE_NOOP("StatQuantity", "Distance"),
           .kind = AxisValues::numbers,
           .colourKey = DefaultsKeys::colorSpeed,
           .unit = [](Units units) { return units.distanceUnit(); },
           .value = [](Values values, Units units) { return units.distance(values.distance); },
           .text = distanceText},
    Traits{.name = QT_TRANSLATE_NOOP("StatQuantity", "Time"),
           .kind = AxisValues::seconds,
           .colourKey = DefaultsKeys::colorSpeed,
           .unit = noUnit,
           .value = [](Values values, Units) { return values.duration; },
           .text = durationText},
    Traits{.name = QT_TRANSLATE_NOOP("StatQuantity", "Elevation Gain"),
           .kind = AxisValues::wholeNumbers,
           .colourKey = DefaultsKeys::colorAltitude,
           .unit = [](Units units) { return units.altitudeUnit(); },
           .value = [](Values values, Units units) { return units.altitude(values.elevationGain); },
           .text = elevationGainText},
    Traits{.name = QT_TRANSLATE_NOOP("StatQuantity", "Heart Beats"),
           .kind = AxisValues::wholeNumbers,
           .colourKey = DefaultsKeys::colorPulse,
           .unit = noUnit,
           .value = [](Values values, Units) { return static_cast<double>(values.heartBeats); },
           .text = heartBeatsText},
};

const Traits& traitsOf(StatQuantity quantity)
{
    return allTraits[static_cast<std::size_t>(quantity)];
}

} // namespace

QString nameOf(StatQuantity quantity)
{
    return QCoreApplication::translate("StatQuantity", traitsOf(quantity).name);
}

QString nameWithUnit(StatQuantity quantity, const ReadableUnits& units)
{
    const auto unit = traitsOf(quantity).unit(units);
    return unit.isEmpty() ? nameOf(quantity) : QStringLiteral("%1 (%2)").arg(nameOf(quantity), unit);
}

AxisValues axisValuesOf(StatQuantity quantity)
{
    return traitsOf(quantity).kind;
}

QString colourKeyOf(StatQuantity quantity)
{
    return traitsOf(quantity).colourKey;
}

double valueOf(StatQuantity quantity, const PeriodStatistics& statistics, const ReadableUnits& units)
{
    return traitsOf(quantity).value(statistics, units);
}

QString textOf(StatQuantity quantity, const PeriodStatistics& statistics, const Defaults& defaults)
{
    const auto& traits = traitsOf(quantity);
    const auto unit = traits.unit(ReadableUnits(defaults.boolForKey(DefaultsKeys::useMiles)));
    const auto text = traits.text(statistics, defaults);
    return unit.isEmpty() ? text : text + u' ' + unit;
}

QString shortPartName(Period period, QDate firstDay)
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

QString longPartName(Period period, QDate firstDay)
{
    if (period == Period::all)
        return periodTitle(Period::year, firstDay, {}, QLocale());
    if (period == Period::year)
        return periodTitle(Period::month, firstDay, {}, QLocale());
    return QLocale().toString(firstDay, QLocale::LongFormat);
}

} // namespace ridelog
