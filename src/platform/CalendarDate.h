#pragma once

#include <QDateTime>
#include <QString>
#include <QTimeZone>

/// Calendar dates: an instant together with the time zone whose calendar it is read in.
/// A plain QDateTime of kind Qt::TimeZone holds both; these are the operations that Qt leaves open.
namespace ridelog::CalendarDate {

/// The user's time zone, as the C library understands the TZ variable or the system's setting; UTC where
/// neither is usable.
QTimeZone localTimeZone();

/// The current date in the local time zone.
QDateTime now();

/// The date with these fields in `zone`. Fields beyond their range carry over: month 13 is January of the
/// next year, day 0 the last day of the month before, hour 24 the next day. A time of day that a change of
/// the clocks skips is read with the offset before the change; of one that is repeated, the first is meant.
QDateTime fromFields(int year, int month, int day, int hour, int minute, int second, const QTimeZone& zone);

/// The same time of day on another day, in the same time zone; changes of the clocks are as for fromFields.
QDateTime onDay(const QDateTime& date, QDate day);

/// The stable text form "2007-03-10 08:00:00 +0100".
QString text(const QDateTime& date);

} // namespace ridelog::CalendarDate
