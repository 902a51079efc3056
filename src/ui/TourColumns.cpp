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
    {TourKey::date, QT_TRANSLATE_NOOP("TourColumns", "Date"), true, false, dateText},
    {TourKey::type, QT_TRANSLATE_NOOP("TourColumns", "Type"), true, false, typeText},
    {TourKey::title, QT_TRANSLATE_NOOP("TourColumns", "Title"), true, false, titleText},
    {TourKey::totalDistance, QT_TRANSLATE_NOOP("TourColumns", "Distance"), true, true, TourColumn::distance},
    {TourKey::duration, QT_TRANSLATE_NOOP("TourColumns", "Duration"), true, true, durationText},
    {TourKey::elevationGain, QT_TRANSLATE_NOOP("TourColumns", "Elevation Gain (%1)"), true, true,
     TourColumn::gain},
    {TourKey::averageSpeed, QT_TRANSLATE_NOOP("TourColumns", "Average Speed"), true, true,
     TourColumn::speed<&OdoTour::avgSpeed>},
    {TourKey::maxSpeed, QT_TRANSLATE_NOOP("TourColumns", "Max Speed"), true, true,
     TourColumn::speed<&OdoTour::maxSpeed>},
    {TourKey::averagePulse, QT_TRANSLATE_NOOP("TourColumns", "Average Pulse"), true, true,
     pulseText<&OdoTour::avgPulse>},
    {TourKey::maxPulse, QT_TRANSLATE_NOOP("TourColumns", "Max Pulse"), true, true,
     pulseText<&OdoTour::maxPulse>},
    {TourKey::averageMovingSpeed, QT_TRANSLATE_NOOP("TourColumns", "Moving Speed"), false, true,
     TourColumn::speed<&OdoTour::avgMovingSpeed>},
    {TourKey::climbingCount, QT_TRANSLATE_NOOP("TourColumns", "Climbs"), false, true, climbsText},
    {TourKey::maxClimbingPercentage, QT_TRANSLATE_NOOP("TourColumns", "Max Grade (%)"), false, true,
     gradeText},
    {TourKey::avgPower, QT_TRANSLATE_NOOP("TourColumns", "Power (W)"), false, true, powerText},
    {TourKey::averageTemp, QT_TRANSLATE_NOOP("TourColumns", "Temperature (°C)"), false, true,
     temperatureText},
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
