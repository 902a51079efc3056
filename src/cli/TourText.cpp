#include "cli/TourText.h"

#include "cli/TextTable.h"
#include "cli/TourTable.h"
#include "cli/Wording.h"

#include <QRegularExpression>

#include <utility>

namespace ridelog {
namespace {

constexpr auto left = TextTable::Align::left;
constexpr auto right = TextTable::Align::right;

/// Lines of a name, a number and its unit.
class Values {
public:
    void add(const QString& name, std::optional<double> value, int decimals, const QString& unit = {})
    {
        if (value)
            _table.addRow({name, QString::number(*value, 'f', decimals), unit});
        else
            _table.addRow({name, QStringLiteral("–")});
    }
    QString text() const { return _table.text(); }

private:
    TextTable _table{{{.align = left}, {.align = right}, {.align = left, .gap = 1}}};
};

template <typename Value, typename Convert>
std::optional<double> converted(const std::optional<Value>& value, Convert&& convert)
{
    return value ? std::optional<double>(convert(*value)) : std::nullopt;
}

QString headText(const OdoTour& tour)
{
    TextTable table({{.align = left}, {.align = left}});
    table.addRow({QStringLiteral("Title"), tour.title()});
    table.addRow({QStringLiteral("Type"), tour.type().value_or(QStringLiteral("?"))});
    table.addRow({QStringLiteral("Start"), CalendarDate::text(tour.date())});
    table.addRow({QStringLiteral("End"), CalendarDate::text(tour.endDate())});
    table.addRow(
        {QStringLiteral("Duration"), QStringLiteral("%1 h %2 min").arg(tour.hours()).arg(tour.minutes())});
    table.addRow({QStringLiteral("Samples"), QString::number(tour.tourData().size())});
    if (tour.removed())
        table.addRow({QStringLiteral("Removed"), QStringLiteral("yes")});
    return table.text();
}

QString startText(const OdoTour& tour, const ReadableUnits& units)
{
    Values values;
    values.add(QStringLiteral("Distance so far"),
               converted(tour.distanceAtStart(),
                         [&](int kilometres) { return units.distance(static_cast<float>(kilometres)); }),
               0, units.distanceUnit());
    values.add(QStringLiteral("Altitude"),
               converted(tour.altitudeAtStart(), [&](int metres) { return units.altitude(metres); }), 0,
               units.altitudeUnit());
    values.add(QStringLiteral("Pulse"), tour.pulseAtStart(), 0, QStringLiteral("/min"));
    return values.text();
}

QString summaryText(const OdoTour& tour, const ReadableUnits& units)
{
    Values values;
    const auto addRoad = [&](const QString& name, float kilometres) {
        values.add(name, units.distance(kilometres), 2, units.distanceUnit());
    };
    const auto addSpeed = [&](const QString& name, float kilometresPerHour) {
        values.add(name, units.speed(kilometresPerHour), 1, units.speedUnit());
    };
    const auto addAltitude = [&](const QString& name, int metres) {
        values.add(name, units.altitude(metres), 0, units.altitudeUnit());
    };
    const auto addGrade = [&](const QString& name, float percentage) {
        values.add(name, percentage, 1, QStringLiteral("%"));
    };
    const auto addTemperature = [&](const QString& name, std::optional<float> celsius, int decimals) {
        // Without samples the highest and the lowest are where the search for them began.
        values.add(name, tour.tourData().empty() ? std::nullopt : celsius, decimals, QStringLiteral("°C"));
    };

    addRoad(QStringLiteral("Distance"), tour.totalDistance());
    addSpeed(QStringLiteral("Average speed"), tour.avgSpeed());
    addSpeed(QStringLiteral("Average speed while moving"), tour.avgMovingSpeed());
    addSpeed(QStringLiteral("Highest speed"), tour.maxSpeed());
    values.add(QStringLiteral("Average pulse"), tour.avgPulse(), 0, QStringLiteral("/min"));
    values.add(QStringLiteral("Highest pulse"), tour.maxPulse(), 0, QStringLiteral("/min"));
    values.add(QStringLiteral("Average power"), tour.avgPower(), 0, QStringLiteral("W"));
    values.add(QStringLiteral("Highest power"), tour.maxPower(), 0, QStringLiteral("W"));
    addTemperature(QStringLiteral("Average temperature"), tour.avgTemperature(), 1);
    addTemperature(QStringLiteral("Highest temperature"), tour.maxTemperature(), 0);
    addTemperature(QStringLiteral("Lowest temperature"), tour.minTemperature(), 0);
    addAltitude(QStringLiteral("Elevation gain"), tour.elevationGain());
    addAltitude(QStringLiteral("Altitude at the end"), tour.altitudeAtEnd());
    values.add(QStringLiteral("Climbs"), tour.climbingCount(), 0);
    addRoad(QStringLiteral("Longest climb"), tour.maxClimbingDistance());
    addRoad(QStringLiteral("Average climb"), tour.avgClimbingDistance());
    addGrade(QStringLiteral("Average grade uphill"), tour.avgClimbingPercentage());
    addGrade(QStringLiteral("Steepest grade uphill"), tour.maxClimbingPercentage());
    values.add(QStringLiteral("Steepest angle uphill"), tour.maxClimbingAngle(), 1, QStringLiteral("°"));
    values.add(QStringLiteral("Descents"), tour.descendingCount(), 0);
    addRoad(QStringLiteral("Longest descent"), tour.maxDescendingDistance());
    addGrade(QStringLiteral("Average grade downhill"), tour.avgDecendingPercentage());
    addGrade(QStringLiteral("Steepest grade downhill"), tour.maxDecendingPercentage());
    values.add(QStringLiteral("Steepest angle downhill"), tour.maxDecendingAngle(), 1, QStringLiteral("°"));
    return values.text();
}

QString indented(const QString& text)
{
    static const QRegularExpression lineEnd(QStringLiteral("\r\n|[\r\n\u2028\u2029]"));
    QString lines;
    for (const auto& line : text.split(lineEnd)) {
        const auto shown = printable(QString(line).replace(u'\t', QStringLiteral("    ")));
        lines += shown.isEmpty() ? QStringLiteral("\n") : QStringLiteral("  %1\n").arg(shown);
    }
    return lines;
}

} // namespace

QString tourText(const OdoTour& tour, int number, const ReadableUnits& units)
{
    auto text = QStringLiteral("Tour %1\n\n%2").arg(QString::number(number), headText(tour));
    if (const auto note = noteOn(tour); !note.isEmpty())
        text += QStringLiteral("\n  It %1\n").arg(note);
    text += QStringLiteral("\nAt the start\n\n") + startText(tour, units);
    text += QStringLiteral("\nSummary\n\n") + summaryText(tour, units);
    if (const auto description = tour.shownDescription(); !description.isEmpty())
        text += QStringLiteral("\nDescription\n\n") + indented(description);
    return text;
}

} // namespace ridelog
