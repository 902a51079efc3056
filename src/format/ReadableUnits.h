#pragma once

#include <QString>

#include <cstdint>

namespace ridelog {

/// Metric values as people want to read them: in kilometres, km/h and metres, or in miles, mph and feet.
class ReadableUnits {
public:
    explicit ReadableUnits(bool miles) : _miles(miles) {}

    double distance(float kilometres) const;
    double speed(float kilometresPerHour) const;
    double altitude(std::int64_t metres) const;

    QString distanceUnit() const;
    QString speedUnit() const;
    QString altitudeUnit() const;

private:
    bool _miles;
};

} // namespace ridelog
