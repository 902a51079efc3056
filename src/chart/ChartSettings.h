#pragma once

#include "platform/ColourComponents.h"

#include <QString>

namespace ridelog {

class Defaults;

/// What the rider has chosen for all charts.
struct ChartSettings {
    int minPulseRange = 0; ///< beats per minute
    int maxPulseRange = 0;
    bool pulseDrawRange = false;
    bool pulseUseGradient = false; ///< the zones outside the range fade, else they are solid
    bool draw2ndAxis = false;      ///< speed may have an axis of its own
    bool useManualRange = false;   ///< the altitude axis goes from minRange to maxRange
    float minRange = 0;            ///< metres
    float maxRange = 0;
    ColourComponents altitudeColor;
    ColourComponents pulseColor;
    ColourComponents speedColor;
    ColourComponents pulseAboveColor;
    ColourComponents pulseInColor;
    ColourComponents pulseBelowColor;

    static ChartSettings fromDefaults(const Defaults& defaults);
    /// Whether one of them is kept under this key.
    static bool isKey(const QString& key);
    bool operator==(const ChartSettings&) const = default;
};

} // namespace ridelog
