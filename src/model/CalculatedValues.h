#pragma once

#include <cstdint>
#include <optional>

namespace ridelog {

/// The cache of a tour's summary values. A value is absent until it has been computed and is never replaced.
struct CalculatedValues {
    // Filled when the series is built.
    std::optional<float> averagePulse;       ///< beats per minute
    std::optional<float> averageSpeed;       ///< km/h over the whole duration
    std::optional<float> averageMovingSpeed; ///< km/h over the samples with a distance
    std::optional<float> averageTemp;        ///< °C
    std::optional<float> maxPulse;           ///< beats per minute
    std::optional<float> maxSpeed;           ///< km/h
    std::optional<float> maxTemp;            ///< °C
    std::optional<float> minTemp;            ///< °C

    // Filled on first request.
    std::optional<std::int32_t> elevationGain;   ///< metres
    std::optional<std::int32_t> climbingCount;   ///< climbs of more than 10 m
    std::optional<std::int32_t> descendingCount; ///< descents of more than 10 m
    std::optional<float> maxClimbingDistance;    ///< kilometres
    std::optional<float> avgClimbingDistance;    ///< kilometres
    std::optional<float> maxDescendingDistance;  ///< kilometres
    std::optional<float> maxClimbingAngle;       ///< degrees, 0 or more
    std::optional<float> maxDecendingAngle;      ///< degrees, 0 or less
    std::optional<float> maxClimbingPercentage;  ///< per cent, 0 or more
    std::optional<float> avgClimbingPercentage;  ///< per cent, 0 or more
    std::optional<float> maxDecendingPercentage; ///< per cent, 0 or more
    std::optional<float> avgDecendingPercentage; ///< per cent, 0 or more
};

/// Calls `visit(key, value)` for every value, present or not, under the key that other programs know it by.
template <typename Visitor>
void forEachValue(const CalculatedValues& values, Visitor&& visit)
{
    visit(u"averagePulse", values.averagePulse);
    visit(u"averageSpeed", values.averageSpeed);
    visit(u"averageMovingSpeed", values.averageMovingSpeed);
    visit(u"averageTemp", values.averageTemp);
    visit(u"maxPulse", values.maxPulse);
    visit(u"maxSpeed", values.maxSpeed);
    visit(u"maxTemp", values.maxTemp);
    visit(u"minTemp", values.minTemp);
    visit(u"elevationGain", values.elevationGain);
    visit(u"climbingCount", values.climbingCount);
    visit(u"descendingCount", values.descendingCount);
    visit(u"maxClimbingDistance", values.maxClimbingDistance);
    visit(u"avgClimbingDistance", values.avgClimbingDistance);
    visit(u"maxDescendingDistance", values.maxDescendingDistance);
    visit(u"maxClimbingAngle", values.maxClimbingAngle);
    visit(u"maxDecendingAngle", values.maxDecendingAngle);
    visit(u"maxClimbingPercentage", values.maxClimbingPercentage);
    visit(u"avgClimbingPercentage", values.avgClimbingPercentage);
    visit(u"maxDecendingPercentage", values.maxDecendingPercentage);
    visit(u"avgDecendingPercentage", values.avgDecendingPercentage);
}

} // namespace ridelog
