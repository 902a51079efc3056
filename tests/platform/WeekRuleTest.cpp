#include "platform/WeekRule.h"

#include <gtest/gtest.h>

namespace ridelog {
namespace {

TEST(WeekRule, MondayWeeksAreThoseOfTheStandard)
{
    const WeekRule rule{Qt::Monday};
    for (auto day = QDate(1995, 1, 1); day.year() < 2030; day = day.addDays(1))
        ASSERT_EQ(rule.weekOfYear(day), day.weekNumber()) << qPrintable(day.toString(Qt::ISODate));
}

TEST(WeekRule, TheFirstOfJanuaryIsInWeekOneWhereOneDayWillDo)
{
    for (const auto firstWeekday : {Qt::Sunday, Qt::Saturday, Qt::Friday}) {
        const WeekRule rule{firstWeekday};
        for (int year = 1995; year < 2030; ++year) {
            int week = 1;
            const auto nextYear = QDate(year + 1, 1, 1);
            const int sharedDays = (nextYear.dayOfWeek() - firstWeekday + 7) % 7;
            for (auto day = QDate(year, 1, 1); day < nextYear; day = day.addDays(1)) {
                week += day.dayOfYear() > 1 && day.dayOfWeek() == firstWeekday;
                const bool isShared = day.daysTo(nextYear) <= sharedDays;
                ASSERT_EQ(rule.weekOfYear(day), isShared ? 1 : week) << qPrintable(day.toString(Qt::ISODate));
            }
        }
    }
}

TEST(WeekRule, FollowsTheLocale)
{
    EXPECT_EQ(WeekRule::ofLocale(QLocale(QStringLiteral("de_DE"))).firstWeekday, Qt::Monday);
    EXPECT_EQ(WeekRule::ofLocale(QLocale(QStringLiteral("en_US"))).firstWeekday, Qt::Sunday);
    EXPECT_EQ(WeekRule::ofLocale(QLocale(QStringLiteral("ar_EG"))).firstWeekday, Qt::Saturday);
}

} // namespace
} // namespace ridelog
