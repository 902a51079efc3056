#pragma once

#include <array>
#include <cstdint>

/// The 16-bit word that the device records for each sample: bits 15..12 the pulse change, 11..6 the altitude
/// change, 5..0 the distance.
namespace ridelog::SampleWord {

/// `value`, of so many bits, as a signed number.
constexpr int signedBits(unsigned value, unsigned bits)
{
    const auto sign = 1U << (bits - 1);
    return static_cast<int>(value ^ sign) - static_cast<int>(sign);
}

/// Altitude steps up to 16 m are recorded as they are, larger ones in steps of 7 m.
constexpr int altitudeChangeOfCode(int code)
{
    if (code > 16)
        return 7 * code - 96;
    if (code < -16)
        return 7 * code + 96;
    return code;
}

/// The altitude change, in metres, that each combination of the six altitude bits stands for.
inline constexpr auto altitudeChanges = [] {
    std::array<std::int16_t, 64> changes{};
    for (unsigned bits = 0; bits < changes.size(); ++bits)
        changes[bits] = static_cast<std::int16_t>(altitudeChangeOfCode(signedBits(bits, 6)));
    return changes;
}();

constexpr unsigned pulseShift = 12;
constexpr unsigned altitudeShift = 6;

/// Beats per minute, an even number from −16 to 14.
constexpr std::int16_t pulseChange(std::uint16_t word)
{
    return static_cast<std::int16_t>(signedBits(word >> pulseShift, 4) * 2);
}

/// Metres, from −128 to 121.
constexpr std::int16_t altitudeChange(std::uint16_t word)
{
    return altitudeChanges[word >> altitudeShift & 0x3FU];
}

/// Metres, a multiple of 10 from 0 to 630.
constexpr std::int32_t distance(std::uint16_t word)
{
    return static_cast<std::int32_t>(word & 0x3FU) * 10;
}

} // namespace ridelog::SampleWord
