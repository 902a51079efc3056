#include "format/ReadableUnits.h"

#include "format/UnitFactors.h"

namespace ridelog {

double ReadableUnits::distance(float kilometres) const
{
    return static_cast<double>(_miles ? kilometres * UnitFactors::milesPerKilometre : kilometres);
}

double ReadableUnits::speed(float kilometresPerHour) const
{
    return distance(kilometresPerHour);
}

double ReadableUnits::altitude(std::int64_t metres) const
{
    return _miles ? static_cast<double>(static_cast<float>(metres) * UnitFactors::feetPerMetre)
                  : static_cast<double>(metres);
}

QString ReadableUnits::distanceUnit() const
{
    return _miles ? QStringLiteral("mi") : QStringLiteral("km");
}

QString ReadableUnits::speedUnit() const
{
    return _miles ? QStringLiteral("mph") : QStringLiteral("km/h");
}

QString ReadableUnits::altitudeUnit() const
{
    return _miles ? QStringLiteral("ft") : QStringLiteral("m");
}

} // namespace ridelog
