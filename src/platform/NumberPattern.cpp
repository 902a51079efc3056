#include "platform/NumberPattern.h"

#include <QRegularExpression>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace ridelog {
namespace {

/// The pattern of each section, also of those that are left out.
QStringList sectionsOf(const QString& pattern)
{
    auto sections = pattern.split(u';');
    const auto& positive = sections.first();
    if (sections.size() == 1)
        return {positive, positive, u'-' + positive};
    if (sections.size() == 2)
        return {positive, positive, sections.at(1)};
    return sections;
}

} // namespace

NumberPattern::NumberPattern(const QString& pattern)
    : _positive(sectionsOf(pattern).at(0)),
      _zero(sectionsOf(pattern).at(1)),
      _negative(sectionsOf(pattern).at(2))
{
}

QString NumberPattern::text(double value, const QLocale& locale) const
{
    if (!std::isfinite(value))
        return {};
    if (value < 0) {
        const auto digits = _negative.digits(value);
        if (digits.find_first_of("123456789") != std::string::npos)
            return _negative.text(digits, locale);
    }
    const auto& section = value > 0 ? _positive : _zero;
    return section.text(section.digits(value > 0 ? value : 0), locale);
}

NumberPattern::Section::Section(const QString& pattern)
{
    // The number begins with a place, or with a point that a place follows.
    static const QRegularExpression number(QStringLiteral("(?=\\.?[#0])([#0]*)(?:\\.([#0]*))?"));
    const auto match = number.match(pattern);
    hasNumber = match.hasMatch();
    if (!hasNumber) {
        before = pattern;
        return;
    }
    before = pattern.first(match.capturedStart());
    after = pattern.sliced(match.capturedEnd());
    const auto integer = match.capturedView(1);
    const auto fraction = match.capturedView(2);
    if (const auto firstRequired = integer.indexOf(u'0'); firstRequired >= 0)
        leastIntegerDigits = static_cast<int>(integer.size() - firstRequired);
    leastFractionDigits = static_cast<int>(fraction.lastIndexOf(u'0') + 1);
    mostFractionDigits = static_cast<int>(fraction.size());
}

std::string NumberPattern::Section::digits(double value) const
{
    constexpr std::size_t mostIntegerDigits = std::numeric_limits<double>::max_exponent10 + 1;
    std::string text(mostIntegerDigits + 1 + static_cast<std::size_t>(mostFractionDigits), '\0');
    const auto end = std::to_chars(text.data(), text.data() + text.size(), std::abs(value),
                                   std::chars_format::fixed, mostFractionDigits)
                         .ptr;
    text.resize(static_cast<std::size_t>(end - text.data()));

    const auto integerDigits = std::min(text.find('.'), text.size());
    const auto required = integerDigits + 1 + static_cast<std::size_t>(leastFractionDigits);
    while (text.size() > required && text.back() == '0')
        text.pop_back();
    if (text.back() == '.')
        text.pop_back();
    const auto leastDigits = static_cast<std::size_t>(leastIntegerDigits);
    if (integerDigits < leastDigits)
        text.insert(0, leastDigits - integerDigits, '0');
    return text;
}

QString NumberPattern::Section::text(const std::string& digits, const QLocale& locale) const
{
    auto text = before;
    if (hasNumber) {
        const auto zero = locale.zeroDigit().toUcs4().first();
        for (const char digit : digits) {
            if (digit == '.')
                text += locale.decimalPoint();
            else
                text += QChar::fromUcs4(zero + static_cast<char32_t>(digit - '0'));
        }
    }
    return text + after;
}

} // namespace ridelog
