#pragma once

#include "model/OdoTour.h"

#include <QDate>
#include <QString>
#include <QTime>

#include <memory>
#include <optional>

namespace ridelog {

/// What the user calls a tour by, the argument TOUR: its number in a list, or the minute in which it starts,
/// in the calendar of its own time zone.
class TourName {
public:
    /// None for something else than a number or a start like 2007-03-10T08:00.
    static std::optional<TourName> fromText(const QString& text);
    /// What to say then.
    static QString fault() { return QStringLiteral("TOUR is a number or a start like 2007-03-10T08:00"); }

    struct Found {
        std::shared_ptr<OdoTour> tour = {};
        int number = 0;       ///< in the list that shows it
        QString refusal = {}; ///< why there is no such tour, or not one alone; empty if there is
    };
    /// Looks among tours that stand in the order of their numbers. Numbers count removed tours only if that
    /// is asked for; by its start a removed tour is found in any case.
    Found findIn(const Tours& tours, bool countRemoved) const;

private:
    Found byNumber(const Tours& tours, bool countRemoved) const;
    Found byStart(const Tours& tours, bool countRemoved) const;

    QString _text;
    QDate _day; ///< none: `_text` is a number
    QTime _time;
};

} // namespace ridelog
