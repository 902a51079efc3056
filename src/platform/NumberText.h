#pragma once

#include <charconv>
#include <iterator>
#include <string_view>

namespace ridelog {

// To a QByteArray or a std::string.

/// Appends the shortest text that reads back to the same number, a 32-bit float as one, with a decimal point
/// and without groups: for programs, not for people. Not for an infinity or NaN.
template <typename Text, typename Number>
void appendShortest(Text& text, Number number)
{
    char digits[32];
    const auto end = std::to_chars(std::begin(digits), std::end(digits), number).ptr;
    text += std::string_view(digits, end);
}

/// Appends the number rounded to so many decimals.
template <typename Text>
void appendFixed(Text& text, double number, int decimals)
{
    char digits[512]; // the largest double has 309 integer digits
    const auto end =
        std::to_chars(std::begin(digits), std::end(digits), number, std::chars_format::fixed, decimals).ptr;
    text += std::string_view(digits, end);
}

} // namespace ridelog
