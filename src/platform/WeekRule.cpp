#include "platform/WeekRule.h"

namespace ridelog {
namespace {

constexpr int daysOfWeek = 7;

} // namespace

int WeekRule::weekOfYear(QDate day) const
{
    const int daysIntoWeek = (day.dayOfWeek() - firstWeekday + daysOfWeek) % daysOfWeek;
    const int daysNeeded = firstWeekday == Qt::Monday ? 4 : 1;
    // A week belongs to the year in which this day of it lies: that year has as many days of it as needed.
    const auto decisive = day.addDays(daysOfWeek - daysNeeded - daysIntoWeek);
    return (decisive.dayOfYear() - 1) / daysOfWeek + 1;
}

} // namespace ridelog
