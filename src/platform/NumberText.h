#pragma once

#include <QByteArray>

#include <charconv>
#include <iterator>

namespace ridelog {

/// Appends the shortest text that reads back to the same number, a 32-bit float as one, with a decimal point
/// and without groups: for programs, not for people. Not for an infinity or NaN.
template <typename Number>
void appendShortest(QByteArray& text, Number number)
{
    char digits[32];
    const auto end = std::to_chars(std::begin(digits), std::end(digits), number).ptr;
    text.append(digits, end - digits);
}

/// Appends the number rounded to so many decimals.
inline void appendFixed(QByteArray& text, double number, int decimals)
{
    char digits[512]; // the largest double has 309 integer digits
    const auto end =
        std::to_chars(std::begin(digits), std::end(digits), number, std::chars_format::fixed, decimals).ptr;
    text.append(digits, end - digits);
}

} // namespace ridelog
