#include "model/Period.h"

#include <QCoreApplication>

namespace ridelog {

PeriodDays::PeriodDays(Period period, QDate chosen, WeekRule weekRule)
    : _period(period),
      _weekRule(weekRule),
      _year(chosen.year()),
      _month(chosen.month()),
      _week(weekRule.weekOfYear(chosen))
{
}

bool PeriodDays::contain(QDate day) const
{
    switch (_period) {
    case Period::year:
        return day.year() == _year;
    case Period::month:
        return day.year() == _year && day.month() == _month;
    case Period::week:
        return day.year() == _year && _weekRule.weekOfYear(day) == _week;
    case Period::all:
        break;
    }
    return true;
}

QString periodTitle(Period period, QDate day, WeekRule weekRule, const QLocale& locale)
{
    auto year = QString::number(day.year());
    switch (period) {
    case Period::year:
        return year;
    case Period::month:
        return QCoreApplication::translate("Period", "%1 %2", "month and year")
            .arg(locale.standaloneMonthName(day.month()), year);
    case Period::week:
        return QCoreApplication::translate("Period", "Week %1, %2", "number and year")
            .arg(QString::number(weekRule.weekOfYear(day)), year);
    case Period::all:
        break;
    }
    return QCoreApplication::translate("Period", "All");
}

} // namespace ridelog
