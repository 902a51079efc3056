#include "format/UnitFormatters.h"

#include "format/UnitFactors.h"
#include "format/UnitsKeys.h"
#include "platform/Defaults.h"

namespace ridelog::UnitFormatters {
namespace {

constexpr auto toMiles = UnitFactors::milesPerKilometre;
constexpr auto toFeet = UnitFactors::feetPerMetre;

struct Units {
    const char* pattern;
    float multiplicator = 1;
};

MultipFormatter formatter(const Defaults& defaults, const Units& imperial, const Units& metric)
{
    const auto& units = defaults.boolForKey(UnitsKeys::useMiles) ? imperial : metric;
    MultipFormatter formatter(defaults);
    formatter.setFormat(QString::fromLatin1(units.pattern));
    formatter.setMultiplicator(units.multiplicator);
    return formatter;
}

} // namespace

MultipFormatter mainDistance(const Defaults& defaults)
{
    return formatter(defaults, {"####.##mi", toMiles}, {"####.##km;0 km;-####.##km"});
}

MultipFormatter mainSpeed(const Defaults& defaults)
{
    return formatter(defaults, {"###.#mph", toMiles}, {"###.#km/h;0 km/h;-###.#km/h"});
}

MultipFormatter tourDistance(const Defaults& defaults)
{
    return formatter(defaults, {"####0.##mi;0 mi;-####0.##mi", toMiles}, {"####0.##km;0 km;-####0.##km"});
}

MultipFormatter tourSpeed(const Defaults& defaults)
{
    return formatter(defaults, {"###0.#mph;0 mph;###0.#mph", toMiles}, {"###0.#km/h;0 km/h;-###0.#km/h"});
}

MultipFormatter altitude(const Defaults& defaults)
{
    return formatter(defaults, {"#####;0;-#####", toFeet}, {"####;0;-####"});
}

PreferenceAwareFormatter manualRange(const Defaults& defaults)
{
    auto formatter = PreferenceAwareFormatter::initWithPreferencesPath(defaults, {});
    formatter.setMultiplicator(1);
    formatter.setAlternativeMultiplicator(toFeet);
    // Last, so that the factor counts even if a text is read before one is shown.
    formatter.setPath(UnitsKeys::useMiles);
    return formatter;
}

MultipFormatter statistics(const Defaults& defaults)
{
    return formatter(defaults, {"#####.#", toMiles}, {"#####.#"});
}

MultipFormatter chartXAxis(const Defaults& defaults)
{
    return formatter(defaults, {"###.#;0;-###.#", toMiles}, {"###.#;0;-###.#"});
}

MultipFormatter chartYAxis(const Defaults& defaults, QStringView firstSeries)
{
    if (firstSeries.isEmpty() || firstSeries == u"altitude")
        return altitude(defaults);
    if (firstSeries == u"speed")
        return formatter(defaults, {"###0.#;0;###0.#", toMiles}, {"###0.#;0;-###0.#"});
    return formatter(defaults, {"###;0;-###"}, {"###;0;-###"});
}

} // namespace ridelog::UnitFormatters
