#include "model/Period.h"

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

} // namespace ridelog
