#include "cli/StatsText.h"

#include "cli/TextTable.h"
#include "cli/TourTable.h"
#include "library/TourList.h"

#include <QLocale>

namespace ridelog {
namespace {

using Column = TextTable::Column;
constexpr auto left = TextTable::Align::left;

QString text(const std::optional<QDateTime>& date)
{
    return date ? date->date().toString(Qt::ISODate) : QStringLiteral("–");
}

QString hoursAndMinutes(double seconds)
{
    const auto minutes = static_cast<qint64>(seconds) / 60;
    return QStringLiteral("%1:%2").arg(minutes / 60).arg(minutes % 60, 2, 10, QLatin1Char('0'));
}

} // namespace

QString statsText(OdoStat& stat, const ReadableUnits& units)
{
    QList columns{Column{.align = left}};
    for (const auto period : allPeriods)
        columns << Column{periodTitle(period, stat.date().date(), stat.weekRule(), QLocale::c())};
    columns << Column{.align = left, .gap = 1};

    TextTable table(columns);
    const auto addRow = [&](const QString& name, const QString& unit, auto&& cellOf) {
        QStringList cells{name};
        for (const auto period : allPeriods)
            cells << cellOf(period);
        table.addRow(cells << unit);
    };
    const auto addValue = [&](const QString& name, const QString& unit, int decimals, auto&& valueOf) {
        addRow(name, unit, [&](Period period) {
            return QString::number(static_cast<double>(valueOf(stat.stat(period))), 'f', decimals);
        });
    };
    using Values = const PeriodStatistics&;
    const auto perMinute = QStringLiteral("/min");
    const auto percent = QStringLiteral("%");

    addValue(QStringLiteral("Distance"), units.distanceUnit(), 2,
             [&](Values values) { return units.distance(values.distance); });
    addRow(QStringLiteral("Duration"), QStringLiteral("h:min"),
           [&](Period period) { return hoursAndMinutes(stat.stat(period).duration); });
    addValue(QStringLiteral("Elevation gain"), units.altitudeUnit(), 0,
             [&](Values values) { return units.altitude(values.elevationGain); });
    addValue(QStringLiteral("Average speed"), units.speedUnit(), 1,
             [&](Values values) { return units.speed(values.averageSpeed); });
    addValue(QStringLiteral("Highest speed"), units.speedUnit(), 1,
             [&](Values values) { return units.speed(values.maxSpeed); });
    addValue(QStringLiteral("Average pulse"), perMinute, 0,
             [](Values values) { return values.averagePulse; });
    addValue(QStringLiteral("Highest pulse"), perMinute, 0, [](Values values) { return values.maxPulse; });
    addValue(QStringLiteral("Heart beats"), {}, 0, [](Values values) { return values.heartBeats; });
    addValue(QStringLiteral("Average grade uphill"), percent, 1,
             [](Values values) { return values.averageClimbingPerc; });
    addValue(QStringLiteral("Average grade downhill"), percent, 1,
             [](Values values) { return values.averageDecendingPerc; });
    addRow(QStringLiteral("First tour"), {}, [&](Period period) { return text(stat.firstTour(period)); });
    addRow(QStringLiteral("Last tour"), {}, [&](Period period) { return text(stat.lastTour(period)); });
    return table.text() + notesOn(withoutRemoved(stat.toursArray()));
}

} // namespace ridelog
