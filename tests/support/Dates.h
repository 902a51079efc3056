#pragma once

#include "platform/CalendarDate.h"

namespace ridelog {

/// A date in Berlin, seconds 0.
inline QDateTime berlin(int year, int month, int day, int hour = 12, int minute = 0)
{
    return CalendarDate::fromFields(year, month, day, hour, minute, 0, QTimeZone("Europe/Berlin"));
}

} // namespace ridelog
