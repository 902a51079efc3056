#include "chart/ChartSettings.h"

#include "library/DefaultsKeys.h"
#include "platform/Defaults.h"

namespace ridelog {
namespace {

/// Calls `visit(key, member)` for every setting.
template <typename Visitor>
void forEachSetting(Visitor&& visit)
{
    using namespace DefaultsKeys;
    visit(pulseMinPulse, &ChartSettings::minPulseRange);
    visit(pulseMaxPulse, &ChartSettings::maxPulseRange);
    visit(pulseDrawPulseRange, &ChartSettings::pulseDrawRange);
    visit(pulseUseGradient, &ChartSettings::pulseUseGradient);
    visit(speed2ndAxis, &ChartSettings::draw2ndAxis);
    visit(useManualRange, &ChartSettings::useManualRange);
    visit(minRange, &ChartSettings::minRange);
    visit(maxRange, &ChartSettings::maxRange);
    visit(colorAltitude, &ChartSettings::altitudeColor);
    visit(colorPulse, &ChartSettings::pulseColor);
    visit(colorSpeed, &ChartSettings::speedColor);
    visit(pulseAboveColor, &ChartSettings::pulseAboveColor);
    visit(pulseInColor, &ChartSettings::pulseInColor);
    visit(pulseBelowColor, &ChartSettings::pulseBelowColor);
}

void read(const Defaults& defaults, const QString& key, int& value)
{
    value = defaults.integerForKey(key);
}

void read(const Defaults& defaults, const QString& key, float& value)
{
    value = defaults.floatForKey(key);
}

void read(const Defaults& defaults, const QString& key, bool& value)
{
    value = defaults.boolForKey(key);
}

void read(const Defaults& defaults, const QString& key, ColourComponents& value)
{
    value = defaults.colourForKey(key).value_or(ColourComponents());
}

} // namespace

ChartSettings ChartSettings::fromDefaults(const Defaults& defaults)
{
    ChartSettings settings;
    forEachSetting([&](const QString& key, auto member) { read(defaults, key, settings.*member); });
    return settings;
}

bool ChartSettings::isKey(const QString& key)
{
    bool found = false;
    forEachSetting([&](const QString& one, auto) { found = found || one == key; });
    return found;
}

} // namespace ridelog
