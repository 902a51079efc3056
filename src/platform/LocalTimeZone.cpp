#include "platform/CalendarDate.h"

#include <ctime>

namespace ridelog::CalendarDate {
namespace {

int offsetOfCLibrary(qint64 secondsSinceEpoch)
{
    const auto instant = static_cast<std::time_t>(secondsSinceEpoch);
    std::tm fields{};
    return localtime_r(&instant, &fields) ? static_cast<int>(fields.tm_gmtoff) : 0;
}

/// Whether the zone has the offsets that the C library has, in every quarter of this year and the next.
bool agreesWithCLibrary(const QTimeZone& zone)
{
    if (!zone.isValid())
        return false;
    constexpr qint64 quarter = qint64{91} * 86400;
    auto instant = QDateTime::currentSecsSinceEpoch();
    for (int quarters = 0; quarters < 8; ++quarters, instant += quarter) {
        if (zone.offsetFromUtc(QDateTime::fromSecsSinceEpoch(instant, Qt::UTC)) != offsetOfCLibrary(instant))
            return false;
    }
    return true;
}

} // namespace

QTimeZone localTimeZone()
{
    tzset();
    if (const auto zone = QTimeZone::systemTimeZone(); agreesWithCLibrary(zone))
        return zone;

    // TZ may also name a file, or a rule of daylight saving without its days. The C library understands both.
    auto name = qgetenv("TZ");
    if (name.startsWith(':'))
        name.remove(0, 1);
    const QByteArray folder = "/zoneinfo/";
    if (const auto at = name.indexOf(folder); at >= 0)
        name.remove(0, at + folder.size());
    for (const auto& candidate : {name, name + ",M3.2.0,M11.1.0"}) {
        if (const QTimeZone zone(candidate); agreesWithCLibrary(zone))
            return zone;
    }
    const QTimeZone fixed(offsetOfCLibrary(QDateTime::currentSecsSinceEpoch()));
    return agreesWithCLibrary(fixed) ? fixed : QTimeZone::utc();
}

} // namespace ridelog::CalendarDate
