#include "format/TimeFormatter.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <limits>

namespace ridelog {
namespace {

using Limits = std::numeric_limits<int>;

TEST(TimeFormatter, WritesHoursMinutesAndSeconds)
{
    for (const auto& [seconds, text] :
         {std::pair(0, "0:00:00"), std::pair(59, "0:00:59"), std::pair(60, "0:01:00"),
          std::pair(599, "0:09:59"), std::pair(600, "0:10:00"), std::pair(3600, "1:00:00"),
          std::pair(40000, "11:06:40"), std::pair(Limits::max(), "596523:14:07"), std::pair(-59, "-0:00:59"),
          std::pair(Limits::min(), "-596523:14:08")}) {
        EXPECT_EQ(TimeFormatter::text(seconds).toStdString(), text);
        EXPECT_EQ(TimeFormatter().stringForObjectValue(seconds + 0.0).toStdString(), text);
    }
}

TEST(TimeFormatter, OnlyNumbersOfSecondsHaveAText)
{
    const TimeFormatter formatter;
    EXPECT_EQ(formatter.stringForObjectValue(75.9F), QStringLiteral("0:01:15"));
    EXPECT_EQ(formatter.stringForObjectValue(-0.9), QStringLiteral("0:00:00"));
    EXPECT_EQ(formatter.stringForObjectValue(QVariant::fromValue(std::int16_t{60})),
              QStringLiteral("0:01:00"));
    for (const auto& none :
         {QVariant(), QVariant(QStringLiteral("75")), QVariant(true), QVariant(2147483648.0),
          QVariant(-2147483649.0), QVariant(std::numeric_limits<double>::quiet_NaN())})
        EXPECT_TRUE(formatter.stringForObjectValue(none).isNull()) << none.typeName();
}

} // namespace
} // namespace ridelog
