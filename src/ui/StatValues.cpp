#include "ui/StatValues.h"

#include "format/ReadableUnits.h"
#include "format/TimeFormatter.h"
#include "format/UnitFormatters.h"
#include "library/DefaultsKeys.h"
#include "platform/Defaults.h"
#include "ui/TourTexts.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

namespace ridelog {
namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("StatValues", text);
}

QString dayText(const OdoStat::Date& date)
{
    return date ? QLocale().toString(date->date(), QLocale::LongFormat) : QString();
}

} // namespace

std::vector<StatValue> statValues(OdoStat& stat, Period period, const Defaults& defaults)
{
    const auto values = stat.stat(period);
    const auto formatter = UnitFormatters::statistics(defaults);
    const auto altitude = UnitFormatters::altitude(defaults);
    const ReadableUnits units(defaults.boolForKey(DefaultsKeys::useMiles));
    const auto percent = QStringLiteral("%");

    std::vector<StatValue> all;
    const auto add = [&all](const char* key, const QString& name, const QString& text) {
        all.push_back({.key = QLatin1StringView(key), .name = name, .text = text});
    };
    const auto addWithUnit = [&](const char* key, const QString& name, const QString& unit,
                                 const QString& text) {
        add(key, QStringLiteral("%1 (%2)").arg(name, unit), text);
    };
    addWithUnit("distance", tr("Distance"), units.distanceUnit(),
                formatter.stringForObjectValue(values.distance));
    add("duration", tr("Duration"), TimeFormatter().stringForObjectValue(values.duration));
    addWithUnit("elevationGain", tr("Elevation gain"), units.altitudeUnit(),
                altitude.stringForObjectValue(static_cast<qlonglong>(values.elevationGain)));
    addWithUnit("averageSpeed", tr("Average speed"), units.speedUnit(),
                formatter.stringForObjectValue(values.averageSpeed));
    addWithUnit("maxSpeed", tr("Highest speed"), units.speedUnit(),
                formatter.stringForObjectValue(values.maxSpeed));
    add("averagePulse", tr("Average pulse"), pulseText(values.averagePulse));
    add("maxPulse", tr("Highest pulse"), pulseText(static_cast<float>(values.maxPulse)));
    add("heartBeats", tr("Heart beats"), QLocale().toString(static_cast<qlonglong>(values.heartBeats)));
    addWithUnit("averageClimbingPerc", tr("Average grade uphill"), percent,
                gradeText(values.averageClimbingPerc));
    addWithUnit("averageDecendingPerc", tr("Average grade downhill"), percent,
                gradeText(values.averageDecendingPerc));
    add("firstTour", tr("First tour"), dayText(stat.firstTour(period)));
    add("lastTour", tr("Last tour"), dayText(stat.lastTour(period)));
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
