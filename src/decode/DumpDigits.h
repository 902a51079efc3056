#pragma once

#include <array>
#include <cstdint>

/// The digits of a raw dump. Fields are read character by character, most significant first, without a check:
/// every character counts something, whether it is a digit or not.
namespace ridelog::DumpDigits {

/// What a character counts in a hex field. Its code is compared unsigned; the value is a signed byte.
constexpr std::int8_t hexValue(unsigned char code)
{
    return static_cast<std::int8_t>(code <= '@' ? code - 48 : code - 55);
}

/// What each character counts at a place worth `weight`, kept to the 16 bits that a field has. A look-up a
/// digit is what makes a dump of 65,000 digits decode in a fraction of a millisecond.
constexpr std::array<std::uint16_t, 256> hexValuesAtPlace(int weight)
{
    std::array<std::uint16_t, 256> values{};
    for (unsigned code = 0; code < values.size(); ++code)
        values[code] = static_cast<std::uint16_t>(weight * hexValue(static_cast<unsigned char>(code)));
    return values;
}

inline constexpr std::array hexPlaces{hexValuesAtPlace(1), hexValuesAtPlace(16), hexValuesAtPlace(256),
                                      hexValuesAtPlace(4096)};

/// What the character counts in a hex field, `place` digits before the last.
constexpr unsigned hexAtPlace(unsigned place, char character)
{
    return hexPlaces[place][static_cast<unsigned char>(character)];
}

/// What a character counts in a decimal field.
constexpr int decimalDigit(char character)
{
    return static_cast<std::int8_t>(static_cast<unsigned char>(character) - 48);
}

} // namespace ridelog::DumpDigits
