#include "platform/NumberPattern.h"

#include <gtest/gtest.h>
#include <limits>

namespace ridelog {
namespace {

std::string text(const std::string& pattern, double value, const QLocale& locale = QLocale::c())
{
    return NumberPattern(QString::fromStdString(pattern)).text(value, locale).toStdString();
}

struct PatternCase {
    const char* pattern;
    double value;
    const char* text;
};

class NumberPatternText : public testing::TestWithParam<PatternCase> {};

TEST_P(NumberPatternText, IsTheNumber)
{
    const auto& [pattern, value, expected] = GetParam();
    EXPECT_EQ(text(pattern, value), expected) << pattern;
}

// What looks like a half is seldom one: 2.675 and 0.145 lie below, 0.165 above.
INSTANTIATE_TEST_SUITE_P(
    , NumberPatternText,
    testing::Values(
        PatternCase{"#", 1240, "1240"}, PatternCase{"####", 0.25, "0"}, PatternCase{".##", 0.5, "0.5"},
        PatternCase{"#.##", 3, "3"}, PatternCase{"#.", 3.7, "4"}, PatternCase{"0.00", 3, "3.00"},
        PatternCase{"#.#0", 3.4, "3.40"}, PatternCase{"0.0#", 3.25, "3.25"}, PatternCase{"#00.0", 7, "07.0"},
        PatternCase{"0##", 7, "007"}, PatternCase{"####.##", 999999.96, "999999.96"},
        PatternCase{"#.#", 999999.96, "1000000"},
        PatternCase{"ca. 0.0 m.p.h. #1", 21.25, "ca. 21.2 m.p.h. #1"},

        PatternCase{"#.##", 0.125, "0.12"}, PatternCase{"#.##", 0.375, "0.38"}, PatternCase{"#", 2.5, "2"},
        PatternCase{"#", 3.5, "4"}, PatternCase{"#.##", 2.675, "2.67"}, PatternCase{"#.##", 0.145, "0.14"},
        PatternCase{"#.##", 0.165, "0.17"}, PatternCase{"#.##", -0.125, "-0.12"},

        PatternCase{"0.0 up;level;0.0 down", 0.04, "0.0 up"},
        PatternCase{"0.0 up;level;0.0 down", 0, "level"}, PatternCase{"0.0 up;level;0.0 down", -0.0, "level"},
        PatternCase{"0.0 up;level;0.0 down", -0.04, "level"},
        PatternCase{"0.0 up;level;0.0 down", -0.06, "0.1 down"}, PatternCase{"#.#mi", -3.14, "-3.1mi"},
        PatternCase{"#.#mi", -0.0, "0mi"}, PatternCase{"#.#mi", -0.04, "0mi"},
        PatternCase{"#;(#)", -3, "(3)"}, PatternCase{"#;(#)", -0.4, "0"},
        PatternCase{"#;0;-#;surplus", -3, "-3"},

        PatternCase{"", 5, ""}, PatternCase{"km", 5, "km"}, PatternCase{".", 5, "."},
        PatternCase{";;", -5, ""}, PatternCase{"..#", 5, ".5"}, PatternCase{"#.#.#", 5.25, "5.2.#"},
        PatternCase{"Ä🚴 # ±", -5, "-Ä🚴 5 ±"}));

TEST(NumberPattern, EveryFiniteNumberHasAText)
{
    using Limits = std::numeric_limits<double>;
    EXPECT_EQ(text("#.##", Limits::lowest()).size(), 310U);
    EXPECT_EQ(text("#.##", -Limits::denorm_min()), "0");
    const auto exact = text("#." + std::string(2000, '#'), Limits::denorm_min());
    EXPECT_EQ(exact.size(), 2U + 1074U);
    EXPECT_TRUE(exact.ends_with("33447265625")) << "2 to the power of -1074";
    for (const double none : {Limits::infinity(), -Limits::infinity(), Limits::quiet_NaN()})
        EXPECT_TRUE(NumberPattern(QStringLiteral("#")).text(none, QLocale::c()).isNull());
}

TEST(NumberPattern, SeparatorAndDigitsAreThoseOfTheLocale)
{
    EXPECT_EQ(text("0.00km", 1240.5, QLocale(QLocale::German)), "1240,50km");
    EXPECT_EQ(text("-0.#", 10.25, QLocale(QLocale::Persian)), "-۱۰٫۲");
    EXPECT_EQ(text("#", 19, QLocale(QLocale::Chakma)), "𑄷𑄿") << "digits outside the basic plane";
}

} // namespace
} // namespace ridelog
