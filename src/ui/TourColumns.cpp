#include "ui/TourColumns.h"

#include "exchange/TourTexts.h"
#include "format/ReadableUnits.h"
#include "format/TimeFormatter.h"
#include "format/UnitFormatters.h"
#include "library/DefaultsKeys.h"
#include "library/TourSorting.h"
#include "platform/Defaults.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <iterator>

namespace ridelog {

/// What there is to know of one column.
struct TourColumn {
    QString key;
    const char* name;
    bool isShownAtFirst;
    bool isNumber;
    QString (*text)(const OdoTour& tour, const TourColumns& columns);

    static QString distance(const OdoTour& tour, const TourColumns& columns)
    {
        return columns._distance.stringForObjectValue(tour.totalDistance());
    }
    template <auto value>
    static QString speed(const OdoTour& tour, const TourColumns& columns)
    {
        return columns._speed.stringForObjectValue((tour.*value)());
    }
    static QString gain(const OdoTour& tour, const TourColumns& columns)
    {
        return columns._altitude.stringForObjectValue(tour.elevationGain());
    }
};

namespace {

/// Marks a text for translation; it is translated when it is shown.
constexpr const char* named(const char* text)
{
    return text;
}

QString dateText(const OdoTour& tour, const TourColumns&)
{
    return QLocale().toString(tour.date(), QLocale::ShortFormat);
}

QString typeText(const OdoTour& tour, const TourColumns&)
{
    return tour.type().value_or(QString());
}

QString titleText(const OdoTour& tour, const TourColumns&)
{
    return tour.shownTitle();
}

QString durationText(const OdoTour& tour, const TourColumns&)
{
    return TimeFormatter().stringForObjectValue(tour.duration());
}

template <auto value>
QString pulseText(const OdoTour& tour, const TourColumns&)
{
    return ridelog::pulseText((tour.*value)());
}

QString climbsText(const OdoTour& tour, const TourColumns&)
{
    return QLocale().toString(tour.climbingCount());
}

QString gradeText(const OdoTour& tour, const TourColumns&)
{
    return ridelog::gradeText(tour.maxClimbingPercentage());
}

QString powerText(const OdoTour& tour, const TourColumns&)
{
    return ridelog::powerText(tour.avgPower());
}

QString temperatureText(const OdoTour& tour, const TourColumns&)
{
    return ridelog::temperatureText(tour.avgTemperature(), 1);
}

const TourColumn columns[] = {
    {TourKey::date, named("Date"), true, false, dateText},
    {TourKey::type, named("Type"), true, false, typeText},
    {TourKey::title, named("Title"), true, false, titleText},
    {TourKey::totalDistance, named("Distance"), true, true, TourColumn::distance},
    {TourKey::duration, named("Duration"), true, true, durationText},
    {TourKey::elevationGain, named("Elevation Gain (%1)"), true, true, TourColumn::gain},
    {TourKey::averageSpeed, named("Average Speed"), true, true, TourColumn::speed<&OdoTour::avgSpeed>},
    {TourKey::maxSpeed, named("Max Speed"), true, true, TourColumn::speed<&OdoTour::maxSpeed>},
    {TourKey::averagePulse, named("Average Pulse"), true, true, pulseText<&OdoTour::avgPulse>},
    {TourKey::maxPulse, named("Max Pulse"), true, true, pulseText<&OdoTour::maxPulse>},
    {TourKey::averageMovingSpeed, named("Moving Speed"), false, true,
     TourColumn::speed<&OdoTour::avgMovingSpeed>},
    {TourKey::climbingCount, named("Climbs"), false, true, climbsText},
    {TourKey::maxClimbingPercentage, named("Max Grade (%)"), false, true, gradeText},
    {TourKey::avgPower, named("Power (W)"), false, true, powerText},
    {TourKey::averageTemp, named("Temperature (°C)"), false, true, temperatureText},
};

const TourColumn& columnAt(int column)
{
    return columns[static_cast<std::size_t>(column)];
}

} // namespace

TourColumns::TourColumns(const Defaults& defaults)
    : _distance(UnitFormatters::mainDistance(defaults)),
      _speed(UnitFormatters::tourSpeed(defaults)),
      _altitude(UnitFormatters::altitude(defaults)),
      _altitudeUnit(ReadableUnits(defaults.boolForKey(DefaultsKeys::useMiles)).altitudeUnit())
{
}

int TourColumns::count()
{
    return static_cast<int>(std::size(columns));
}

QString TourColumns::keyOf(int column)
{
    return columnAt(column).key;
}

int TourColumns::columnWithKey(const QString& key)
{
    const auto* found = std::ranges::find(columns, key, &TourColumn::key);
    return found == std::end(columns) ? -1 : static_cast<int>(found - std::begin(columns));
}

bool TourColumns::isShownAtFirst(int column)
{
    return columnAt(column).isShownAtFirst;
}

bool TourColumns::isNumber(int column)
{
    return columnAt(column).isNumber;
}

QString TourColumns::header(int column) const
{
    const auto name = QCoreApplication::translate("TourColumns", columnAt(column).name);
    return name.contains(QStringLiteral("%1")) ? name.arg(_altitudeUnit) : name;
}

QString TourColumns::text(int column, const OdoTour& tour) const
{
    return columnAt(column).text(tour, *this);
}

} // namespace ridelog
