#pragma once

/// The factors between the metric units that are used everywhere inside and those that riders may prefer to
/// read. Only texts are converted, never values.
namespace ridelog::UnitFactors {

inline constexpr float milesPerKilometre = 0.6213712F;
inline constexpr float feetPerMetre = 3.2808399F;

} // namespace ridelog::UnitFactors
