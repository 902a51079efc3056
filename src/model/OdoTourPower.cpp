#include "model/OdoTour.h"

#include <cmath>
#include <limits>

namespace ridelog {
namespace {

// Rider and bicycle, 87.55 kg, in the standard gravity of 9.80665 m/s².
constexpr double weightForce = 858.5722075;
constexpr double rollingResistance = 0.0075;
// Barometric decrease of the air's density, per metre: 1.293 kg/m³ × 9.80665 m/s² / 101325 Pa.
constexpr double densityDecrease = -0.00012514185492227978;
// Half the air's density at 0 °C and sea level, × 1.03, × 273.15 K: divided by a temperature in kelvin it is
// half the density at that temperature.
constexpr double halfDensityTimesKelvin = 181.88921925;
constexpr double kelvinAtZeroCelsius = 273.15;
// Drag area in m²: that of the rider, which grows with the cadence, and that of the bicycle.
constexpr double dragWithoutPedalling = 0.9204;
constexpr double dragPerRevolution = 0.002;
constexpr double dragPedalling = 0.78;
constexpr double riderDrag = 0.25092421756969363;
constexpr double riderArea = 1.6296016639326663;
constexpr double bicycleDragArea = 0.108;

/// `value` without its fraction, kept inside the range of int; 0 for NaN.
int truncated(double value)
{
    using Limits = std::numeric_limits<int>;
    if (std::isnan(value))
        return 0;
    if (value >= static_cast<double>(Limits::max()))
        return Limits::max();
    if (value <= static_cast<double>(Limits::min()))
        return Limits::min();
    return static_cast<int>(value);
}

} // namespace

int OdoTour::calcPowerFrom(int altitude, int temperature, int cad, double timeDiff, double distanceDiff,
                           double altitudeDiff)
{
    const double runSquared = distanceDiff * distanceDiff - altitudeDiff * altitudeDiff;
    if (!(runSquared > 0))
        return 0;
    const double slope = std::atan(altitudeDiff / std::sqrt(runSquared));
    const double speed = distanceDiff / timeDiff;
    const double weightPower = distanceDiff * weightForce / timeDiff;
    const double slopePower = weightPower * std::sin(slope);
    const double rollPower = weightPower * rollingResistance * std::cos(slope);
    const double drag = cad == 0 ? dragWithoutPedalling : (cad * dragPerRevolution + 1.0) * dragPedalling;
    const double airPower = std::exp(densityDecrease * altitude) * halfDensityTimesKelvin *
                            (speed * speed * speed) * (drag * riderDrag * riderArea + bicycleDragArea) /
                            (temperature + kelvinAtZeroCelsius);
    const double power = airPower + (slopePower + rollPower);
    return power < 0 ? 0 : truncated(power);
}

} // namespace ridelog
