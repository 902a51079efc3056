#pragma once

#include <QDate>
#include <QLocale>

namespace ridelog {

/// On which weekday weeks start. Where that is Monday, the first week of a year is the first one with four
/// days in it; elsewhere a single day will do.
struct WeekRule {
    Qt::DayOfWeek firstWeekday = Qt::Monday;

    static WeekRule ofLocale(const QLocale& locale) { return {locale.firstDayOfWeek()}; }

    /// The number, from 1, of the week that the day lies in. Days at the end of a year may lie in the first
    /// week of the next one, days at its beginning in the last week of the one before.
    int weekOfYear(QDate day) const;
};

} // namespace ridelog
