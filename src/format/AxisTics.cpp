#include "format/AxisTics.h"

#include "format/TimeFormatter.h"

#include <QLocale>

#include <algorithm>
#include <cmath>
#include <limits>

namespace ridelog {
namespace {

constexpr double secondsPerMinute = 60;
constexpr double secondsPerHour = 3600;
constexpr double mostSeconds = std::numeric_limits<int>::max();

double roundSeconds(double least)
{
    for (const double minutes : {1.0, 2.0, 5.0, 10.0, 15.0, 30.0}) {
        if (minutes * secondsPerMinute >= least)
            return minutes * secondsPerMinute;
    }
    return roundStep(std::max(least / secondsPerHour, 1.0)) * secondsPerHour;
}

} // namespace

double roundStep(double least)
{
    const auto power = std::pow(10.0, std::floor(std::log10(least)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (factor * power >= least)
            return factor * power;
    }
    return 10 * power;
}

double ticStep(AxisValues values, double least)
{
    switch (values) {
    case AxisValues::wholeNumbers:
        return roundStep(std::max(least, 1.0));
    case AxisValues::seconds:
        return roundSeconds(least);
    case AxisValues::numbers:
        break;
    }
    return roundStep(std::max(least, 0.1)); // what is less cannot be told apart by its label
}

QString ticLabel(AxisValues values, double value, double step)
{
    constexpr double longest = 1e9;
    if (values == AxisValues::seconds)
        return TimeFormatter::text(static_cast<int>(std::clamp(value, -mostSeconds, mostSeconds)));
    auto locale = QLocale();
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return std::abs(value) >= longest ? locale.toString(value, 'g', 3)
                                      : locale.toString(value, 'f', step < 1 ? 1 : 0);
}

} // namespace ridelog
