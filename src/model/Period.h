#pragma once

#include "platform/WeekRule.h"

#include <QDate>
#include <QLocale>
#include <QString>

#include <array>

namespace ridelog {

/// What statistics are made of: all tours, or those in the calendar year, month or week of a chosen date.
enum class Period { all, year, month, week };

inline constexpr std::array allPeriods{Period::all, Period::year, Period::month, Period::week};

/// The days that belong to a period. Those of a week all lie in the year of the chosen day: a week that
/// reaches over the end of a year has no days of the other year, but the days of this year that have the same
/// week number at its other end.
class PeriodDays {
public:
    PeriodDays(Period period, QDate chosen, WeekRule weekRule);

    bool contain(QDate day) const;

private:
    Period _period;
    WeekRule _weekRule;
    int _year;
    int _month;
    int _week;
};

/// The period of this day in words, as "March 2007" and "Week 11, 2007", with the names of the locale.
QString periodTitle(Period period, QDate day, WeekRule weekRule, const QLocale& locale);

} // namespace ridelog
