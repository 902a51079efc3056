#include "exchange/TourSummary.h"

#include "exchange/TourTexts.h"
#include "format/ReadableUnits.h"
#include "format/TimeFormatter.h"
#include "format/UnitFormatters.h"
#include "library/DefaultsKeys.h"
#include "model/OdoTour.h"
#include "platform/Defaults.h"

#include <QCoreApplication>
#include <QLocale>

#include <optional>

namespace ridelog {
namespace {

/// How values are written now.
struct Writer {
    explicit Writer(const Defaults& defaults)
        : distance(UnitFormatters::tourDistance(defaults)),
          speed(UnitFormatters::tourSpeed(defaults)),
          altitude(UnitFormatters::altitude(defaults))
    {
    }

    MultipFormatter distance;
    MultipFormatter speed;
    MultipFormatter altitude;
};

struct Value {
    const char* group;
    const char* key;
    const char* name; ///< "%1" stands for the unit of altitudes, which their text does not have
    QString (*text)(const OdoTour& tour, const Writer& writer);
};

QString withUnit(const QString& text, const QString& unit)
{
    return text.isEmpty() ? text : text + unit;
}

template <auto value>
QString distance(const OdoTour& tour, const Writer& writer)
{
    return writer.distance.stringForObjectValue((tour.*value)());
}

template <auto value>
QString speed(const OdoTour& tour, const Writer& writer)
{
    return writer.speed.stringForObjectValue((tour.*value)());
}

template <auto value>
QString altitude(const OdoTour& tour, const Writer& writer)
{
    return writer.altitude.stringForObjectValue((tour.*value)());
}

template <auto value>
QString count(const OdoTour& tour, const Writer&)
{
    return QLocale().toString((tour.*value)());
}

template <auto value>
QString grade(const OdoTour& tour, const Writer&)
{
    return withUnit(gradeText((tour.*value)()), QStringLiteral(" %"));
}

template <auto value>
QString angle(const OdoTour& tour, const Writer&)
{
    return QLocale().toString(static_cast<double>((tour.*value)()), 'f', 1) + u'°';
}

template <auto value>
QString pulse(const OdoTour& tour, const Writer&)
{
    return pulseText((tour.*value)());
}

template <auto value>
QString power(const OdoTour& tour, const Writer&)
{
    return withUnit(powerText(static_cast<double>((tour.*value)())), QStringLiteral(" W"));
}

/// Without samples the highest and the lowest are where the search for them began.
template <auto value, int decimals>
QString temperature(const OdoTour& tour, const Writer&)
{
    const std::optional<float> celsius = tour.tourData().empty() ? std::nullopt : (tour.*value)();
    return withUnit(temperatureText(celsius, decimals), QStringLiteral(" °C"));
}

QString duration(const OdoTour& tour, const Writer&)
{
    return TimeFormatter().stringForObjectValue(tour.duration());
}

constexpr const char* tourGroup = QT_TRANSLATE_NOOP("TourSummary", "Tour");
constexpr const char* speedGroup = QT_TRANSLATE_NOOP("TourSummary", "Speed");
constexpr const char* climbingGroup = QT_TRANSLATE_NOOP("TourSummary", "Climbing");
constexpr const char* descendingGroup = QT_TRANSLATE_NOOP("TourSummary", "Descending");
constexpr const char* pulseGroup = QT_TRANSLATE_NOOP("TourSummary", "Pulse");
constexpr const char* powerGroup = QT_TRANSLATE_NOOP("TourSummary", "Power");
constexpr const char* temperatureGroup = QT_TRANSLATE_NOOP("TourSummary", "Temperature");

const Value values[] = {
    {tourGroup, "distance", QT_TRANSLATE_NOOP("TourSummary", "Distance"), distance<&OdoTour::totalDistance>},
    {tourGroup, "duration", QT_TRANSLATE_NOOP("TourSummary", "Duration"), duration},
    {speedGroup, "avgSpeed", QT_TRANSLATE_NOOP("TourSummary", "Average"), speed<&OdoTour::avgSpeed>},
    {speedGroup, "avgMovingSpeed", QT_TRANSLATE_NOOP("TourSummary", "Average while moving"),
     speed<&OdoTour::avgMovingSpeed>},
    {speedGroup, "maxSpeed", QT_TRANSLATE_NOOP("TourSummary", "Highest"), speed<&OdoTour::maxSpeed>},
    {climbingGroup, "elevationGain", QT_TRANSLATE_NOOP("TourSummary", "Elevation gain (%1)"),
     altitude<&OdoTour::elevationGain>},
    {climbingGroup, "altitudeAtEnd", QT_TRANSLATE_NOOP("TourSummary", "Altitude at the end (%1)"),
     altitude<&OdoTour::altitudeAtEnd>},
    {climbingGroup, "climbingCount", QT_TRANSLATE_NOOP("TourSummary", "Climbs"),
     count<&OdoTour::climbingCount>},
    {climbingGroup, "maxClimbingDistance", QT_TRANSLATE_NOOP("TourSummary", "Longest climb"),
     distance<&OdoTour::maxClimbingDistance>},
    {climbingGroup, "avgClimbingDistance", QT_TRANSLATE_NOOP("TourSummary", "Average climb"),
     distance<&OdoTour::avgClimbingDistance>},
    {climbingGroup, "avgClimbingPercentage", QT_TRANSLATE_NOOP("TourSummary", "Average grade"),
     grade<&OdoTour::avgClimbingPercentage>},
    {climbingGroup, "maxClimbingPercentage", QT_TRANSLATE_NOOP("TourSummary", "Steepest grade"),
     grade<&OdoTour::maxClimbingPercentage>},
    {climbingGroup, "maxClimbingAngle", QT_TRANSLATE_NOOP("TourSummary", "Steepest angle"),
     angle<&OdoTour::maxClimbingAngle>},
    {descendingGroup, "descendingCount", QT_TRANSLATE_NOOP("TourSummary", "Descents"),
     count<&OdoTour::descendingCount>},
    {descendingGroup, "maxDescendingDistance", QT_TRANSLATE_NOOP("TourSummary", "Longest descent"),
     distance<&OdoTour::maxDescendingDistance>},
    {descendingGroup, "avgDecendingPercentage", QT_TRANSLATE_NOOP("TourSummary", "Average grade"),
     grade<&OdoTour::avgDecendingPercentage>},
    {descendingGroup, "maxDecendingPercentage", QT_TRANSLATE_NOOP("TourSummary", "Steepest grade"),
     grade<&OdoTour::maxDecendingPercentage>},
    {descendingGroup, "maxDecendingAngle", QT_TRANSLATE_NOOP("TourSummary", "Steepest angle"),
     angle<&OdoTour::maxDecendingAngle>},
    {pulseGroup, "avgPulse", QT_TRANSLATE_NOOP("TourSummary", "Average"), pulse<&OdoTour::avgPulse>},
    {pulseGroup, "maxPulse", QT_TRANSLATE_NOOP("TourSummary", "Highest"), pulse<&OdoTour::maxPulse>},
    {powerGroup, "avgPower", QT_TRANSLATE_NOOP("TourSummary", "Average"), power<&OdoTour::avgPower>},
    {powerGroup, "maxPower", QT_TRANSLATE_NOOP("TourSummary", "Highest"), power<&OdoTour::maxPower>},
    {temperatureGroup, "averageTemp", QT_TRANSLATE_NOOP("TourSummary", "Average"),
     temperature<&OdoTour::avgTemperature, 1>},
    {temperatureGroup, "maxTemp", QT_TRANSLATE_NOOP("TourSummary", "Highest"),
     temperature<&OdoTour::maxTemperature, 0>},
    {temperatureGroup, "minTemp", QT_TRANSLATE_NOOP("TourSummary", "Lowest"),
     temperature<&OdoTour::minTemperature, 0>},
};

QString translated(const char* text)
{
    return QCoreApplication::translate("TourSummary", text);
}

} // namespace

std::vector<SummaryGroup> tourSummary(const OdoTour& tour, const Defaults& defaults)
{
    const Writer writer(defaults);
    const auto altitudeUnit = ReadableUnits(defaults.boolForKey(DefaultsKeys::useMiles)).altitudeUnit();
    std::vector<SummaryGroup> groups;
    const char* group = nullptr;
    for (const auto& value : values) {
        if (value.group != group)
            groups.push_back({.name = translated(value.group)});
        group = value.group;
        groups.back().values.push_back(
            {.key = QLatin1StringView(value.key),
             .name = translated(value.name).replace(QStringLiteral("%1"), altitudeUnit),
             .text = value.text(tour, writer)});
    }
    return groups;
}

} // namespace ridelog
