#include "cli/TourTable.h"

#include "cli/TextTable.h"
#include "cli/Wording.h"

#include <algorithm>

namespace ridelog {
namespace {

using Column = TextTable::Column;
constexpr auto left = TextTable::Align::left;

/// Of a longer title a table shows the beginning.
constexpr qsizetype longestTitle = 40;

QString titleOf(const OdoTour& tour)
{
    return elided(tour.shownTitle(), longestTitle);
}

/// What most lists have no use for.
struct RareColumns {
    explicit RareColumns(const Tours& tours)
        : removed(std::ranges::any_of(tours, [](const auto& tour) { return tour->removed(); })),
          title(std::ranges::any_of(tours, [](const auto& tour) { return !titleOf(*tour).isEmpty(); }))
    {
    }

    bool removed;
    bool title;
};

QList<Column> columns(RareColumns rare, const ReadableUnits& units)
{
    QList columns{Column{QStringLiteral("#")},
                  Column{QStringLiteral("Date"), left},
                  Column{QStringLiteral("Type"), left},
                  Column{QStringLiteral("Samples")},
                  Column{units.distanceUnit()},
                  Column{QStringLiteral("h:min")},
                  Column{QStringLiteral("Gain ") + units.altitudeUnit()},
                  Column{QStringLiteral("Climbs")},
                  Column{QStringLiteral("Avg ") + units.speedUnit()},
                  Column{QStringLiteral("Max ") + units.speedUnit()},
                  Column{QStringLiteral("Avg pulse")},
                  Column{QStringLiteral("Max pulse")},
                  Column{QStringLiteral("Avg W")}};
    if (rare.removed)
        columns << Column{QStringLiteral("Removed"), left};
    if (rare.title)
        columns << Column{QStringLiteral("Title"), left};
    return columns;
}

QStringList row(const OdoTour& tour, int number, RareColumns rare, const ReadableUnits& units)
{
    const auto mark = noteOn(tour).isEmpty() ? QString() : QStringLiteral("*");
    QStringList cells{QString::number(number),
                      tour.date().toString(QStringLiteral("yyyy-MM-dd HH:mm")),
                      tour.type().value_or(QStringLiteral("?")),
                      QString::number(tour.tourData().size()) + mark,
                      QString::number(units.distance(tour.totalDistance()), 'f', 2),
                      QStringLiteral("%1:%2").arg(tour.hours()).arg(tour.minutes(), 2, 10, QLatin1Char('0')),
                      QString::number(units.altitude(tour.elevationGain()), 'f', 0),
                      QString::number(tour.climbingCount()),
                      QString::number(units.speed(tour.avgSpeed()), 'f', 1),
                      QString::number(units.speed(tour.maxSpeed()), 'f', 1),
                      QString::number(static_cast<double>(tour.avgPulse()), 'f', 0),
                      QString::number(static_cast<double>(tour.maxPulse()), 'f', 0),
                      QString::number(tour.avgPower(), 'f', 0)};
    if (rare.removed)
        cells << (tour.removed() ? QStringLiteral("removed") : QString());
    if (rare.title)
        cells << titleOf(tour);
    return cells;
}

} // namespace

QString tourTable(const Tours& tours, const ReadableUnits& units)
{
    const RareColumns rare(tours);
    TextTable table(columns(rare, units));
    int number = 0;
    QString note;
    for (const auto& tour : tours) {
        table.addRow(row(*tour, ++number, rare, units));
        if (note.isEmpty())
            note = noteOn(*tour);
    }
    return note.isEmpty() ? table.text() : table.text() + QStringLiteral("\n  * %1\n").arg(note);
}

QString noteOn(const OdoTour& tour)
{
    // Samples from the front of the ring enter the series when the tour is read back from a document.
    if (tour.data().size() > tour.tourData().size())
        return {};
    return QStringLiteral("goes on at the front of the memory; the values are those of its first part");
}

QString notesOn(const Tours& tours)
{
    QString text;
    for (const auto& tour : tours) {
        if (const auto note = noteOn(*tour); !note.isEmpty())
            text += QStringLiteral("\n  The tour of %1 %2\n").arg(CalendarDate::text(tour->date()), note);
    }
    return text;
}

} // namespace ridelog
