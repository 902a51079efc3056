#pragma once

/// The factors between the metric units that are used everywhere inside and those that riders may prefer to
/// read. Only texts are converted, never values.
namespace ridelog::UnitFactors {

inline constexpr double milesPerKilometre = 0.6213712;
inline constexpr double feetPerMetre = 3.2808399;

} // namespace ridelog::UnitFactors
