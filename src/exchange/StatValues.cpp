#include "exchange/StatValues.h"

#include "exchange/TourTexts.h"
#include "format/ReadableUnits.h"
#include "format/TimeFormatter.h"
#include "format/UnitFormatters.h"
#include "library/DefaultsKeys.h"
#include "platform/Defaults.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

namespace ridelog {
namespace {

QString dayText(const OdoStat::Date& date)
{
    return date ? QLocale().toString(date->date(), shortDateFormat()) : QString();
}

} // namespace

std::vector<StatValue> statValues(OdoStat& stat, Period period, const Defaults& defaults)
{
    const auto values = stat.stat(period);
    // Nothing has no average.
    const bool hasTours = stat.firstTour(period).has_value();
    const auto formatter = UnitFormatters::statistics(defaults);
    const auto altitude = UnitFormatters::altitude(defaults);
    const ReadableUnits units(defaults.boolForKey(DefaultsKeys::useMiles));

    std::vector<StatValue> all;
    const auto add = [&all](const char* key, const char* name, const QString& text,
                            const QString& unit = QString()) {
        auto shown = QCoreApplication::translate("StatValues", name);
        if (!unit.isEmpty())
            shown += QStringLiteral(" (%1)").arg(unit);
        all.push_back({.key = QLatin1StringView(key), .name = shown, .text = text});
    };
    const auto addOfTours = [&](const char* key, const char* name, const QString& text,
                                const QString& unit = QString()) {
        add(key, name, hasTours ? text : QString(), unit);
    };
    const auto percent = QStringLiteral("%");
    add("distance", QT_TRANSLATE_NOOP("StatValues", "Distance"),
        formatter.stringForObjectValue(values.distance), units.distanceUnit());
    add("duration", QT_TRANSLATE_NOOP("StatValues", "Duration"),
        TimeFormatter().stringForObjectValue(values.duration));
    add("elevationGain", QT_TRANSLATE_NOOP("StatValues", "Elevation gain"),
        altitude.stringForObjectValue(static_cast<qlonglong>(values.elevationGain)), units.altitudeUnit());
    addOfTours("averageSpeed", QT_TRANSLATE_NOOP("StatValues", "Average speed"),
               formatter.stringForObjectValue(values.averageSpeed), units.speedUnit());
    addOfTours("maxSpeed", QT_TRANSLATE_NOOP("StatValues", "Highest speed"),
               formatter.stringForObjectValue(values.maxSpeed), units.speedUnit());
    addOfTours("averagePulse", QT_TRANSLATE_NOOP("StatValues", "Average pulse"),
               pulseText(values.averagePulse));
    addOfTours("maxPulse", QT_TRANSLATE_NOOP("StatValues", "Highest pulse"),
               pulseText(static_cast<float>(values.maxPulse)));
    add("heartBeats", QT_TRANSLATE_NOOP("StatValues", "Heart beats"), countText(values.heartBeats));
    addOfTours("averageClimbingPerc", QT_TRANSLATE_NOOP("StatValues", "Average grade uphill"),
               gradeText(values.averageClimbingPerc), percent);
    addOfTours("averageDecendingPerc", QT_TRANSLATE_NOOP("StatValues", "Average grade downhill"),
               gradeText(values.averageDecendingPerc), percent);
    add("firstTour", QT_TRANSLATE_NOOP("StatValues", "First tour"), dayText(stat.firstTour(period)));
    add("lastTour", QT_TRANSLATE_NOOP("StatValues", "Last tour"), dayText(stat.lastTour(period)));
    return all;
}

QString statText(OdoStat& stat, const Defaults& defaults)
{
    QStringList lines{QString()};
    for (const auto& value : statValues(stat, Period::all, defaults))
        lines << value.name;
    for (const auto period : allPeriods) {
        auto line = lines.begin();
        *line++ += u'\t' + periodTitle(period, stat.date().date(), stat.weekRule(), QLocale());
        for (const auto& value : statValues(stat, period, defaults))
            *line++ += u'\t' + value.text;
    }
    return lines.join(u'\n') + u'\n';
}

} // namespace ridelog
