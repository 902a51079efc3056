#include "platform/CalendarDate.h"

#include <chrono>

namespace ridelog::CalendarDate {
namespace {

constexpr qint64 secondsPerDay = 86400;

/// Seconds from 1970-01-01 00:00 to the fields as if every day had 24 hours (Gregorian calendar).
qint64 secondsOfFields(int year, int month, int day, int hour, int minute, int second)
{
    using namespace std::chrono;
    const auto firstOfMonth = std::chrono::year{year} / January / 1 + months{month - 1};
    const auto days = sys_days{firstOfMonth}.time_since_epoch().count() + qint64{day} - 1;
    return days * secondsPerDay + qint64{hour} * 3600 + qint64{minute} * 60 + second;
}

qint64 offsetAt(const QTimeZone& zone, qint64 secondsSinceEpoch)
{
    return zone.offsetFromUtc(QDateTime::fromSecsSinceEpoch(secondsSinceEpoch, Qt::UTC));
}

} // namespace

QDateTime now()
{
    return QDateTime::currentDateTimeUtc().toTimeZone(localTimeZone());
}

QDateTime fromFields(int year, int month, int day, int hour, int minute, int second, const QTimeZone& zone)
{
    const auto local = secondsOfFields(year, month, day, hour, minute, second);
    // No zone's offset reaches a day, so these two lie on either side of a change near the wanted time.
    const auto before = offsetAt(zone, local - secondsPerDay);
    const auto after = offsetAt(zone, local + secondsPerDay);
    auto instant = local - before;
    if (before != after && offsetAt(zone, instant) != before && offsetAt(zone, local - after) == after)
        instant = local - after;
    return QDateTime::fromSecsSinceEpoch(instant, zone);
}

QDateTime onDay(const QDateTime& date, QDate day)
{
    const auto time = date.time();
    return fromFields(day.year(), day.month(), day.day(), time.hour(), time.minute(), time.second(),
                      date.timeZone())
        .addMSecs(time.msec());
}

QString text(const QDateTime& date)
{
    const auto offsetMinutes = date.offsetFromUtc() / 60;
    const auto day = date.date();
    const auto time = date.time();
    return QString::asprintf("%04d-%02d-%02d %02d:%02d:%02d %c%02d%02d", day.year(), day.month(), day.day(),
                             time.hour(), time.minute(), time.second(), offsetMinutes < 0 ? '-' : '+',
                             qAbs(offsetMinutes) / 60, qAbs(offsetMinutes) % 60);
}

} // namespace ridelog::CalendarDate
