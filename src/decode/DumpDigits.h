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

/// What a character counts in a decimal field.
constexpr std::int8_t decimalValue(unsigned char code)
{
    return static_cast<std::int8_t>(code - 48);
}

/// What each character counts at a place worth `weight`, kept to the 16 bits that a field has.
constexpr std::array<std::uint16_t, 256> valuesAtPlace(int weight, std::int8_t (*value)(unsigned char))
{
    std::array<std::uint16_t, 256> values{};
    for (unsigned code = 0; code < values.size(); ++code)
        values[code] = static_cast<std::uint16_t>(weight * value(static_cast<unsigned char>(code)));
    return values;
}

inline constexpr std::array hexPlaces{valuesAtPlace(1, hexValue), valuesAtPlace(16, hexValue),
                                      valuesAtPlace(256, hexValue), valuesAtPlace(4096, hexValue)};

/// What the character counts in a hex field, `place` digits before the last.
constexpr unsigned hexAtPlace(unsigned place, char character)
{
    return hexPlaces[place][static_cast<unsigned char>(character)];
}

constexpr int decimalDigit(char character)
{
    return decimalValue(static_cast<unsigned char>(character));
}

} // namespace ridelog::DumpDigits
