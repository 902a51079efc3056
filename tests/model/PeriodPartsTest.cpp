#include "model/PeriodParts.h"

#include "tests/support/Rides.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace ridelog {
namespace {

/// Rides of three years, some of them removed, with a year between without any.
Tours manyTours()
{
    std::mt19937 random(5);
    const auto below = [&random](int limit) {
        return static_cast<int>(random() % static_cast<unsigned>(limit));
    };
    const QTimeZone zones[]{QTimeZone("Europe/Berlin"), QTimeZone("America/New_York"),
                            QTimeZone("Asia/Tokyo")};
    Tours tours;
    for (int i = 0; i < 1'500; ++i) {
        const int year = i % 3 == 2 ? 2009 : 2006 + i % 3;
        const auto start =
            CalendarDate::fromFields(year, 1, 1 + below(365), below(24), 0, 0, zones[below(3)]);
        const int entries = 2 + below(20);
        tours.push_back(Ride{
            .start = start, .entries = entries, .metres = 125 * below(40), .pulseSum = entries * below(180)}
                            .tour());
        tours.back()->setRemoved(below(8) == 0);
    }
    return tours;
}

TEST(PeriodParts, AddUpToTheirPeriod)
{
    const auto tours = manyTours();
    for (const auto firstWeekday : {Qt::Monday, Qt::Sunday}) {
        OdoStat stat(WeekRule{firstWeekday}, berlin(2005, 12, 20));
        stat.setToursArray(tours);
        for (; stat.date().date().year() < 2008; stat.setDate(stat.date().addDays(4))) {
            for (const auto period : allPeriods) {
                const auto whole = stat.stat(period);
                auto sum = whole; // as to averages
                sum.distance = sum.maxSpeed = 0;
                sum.duration = 0;
                sum.elevationGain = sum.maxPulse = 0;
                auto before = QDate(1, 1, 1);
                for (const auto& [firstDay, part] : partsOf(period, stat)) {
                    ASSERT_LT(before, firstDay);
                    before = firstDay;
                    sum.distance += part.distance;
                    sum.duration += part.duration;
                    sum.elevationGain += part.elevationGain;
                    sum.maxSpeed = std::max(sum.maxSpeed, part.maxSpeed);
                    sum.maxPulse = std::max(sum.maxPulse, part.maxPulse);
                }
                ASSERT_NEAR(sum.distance, whole.distance, whole.distance * 1e-5);
                sum.distance = whole.distance;
                ASSERT_EQ(sum, whole) << qPrintable(stat.date().toString()) << static_cast<int>(period);
            }
        }
    }
}

TEST(PeriodParts, AreYearsMonthsAndDays)
{
    const auto tours = manyTours();
    OdoStat stat(WeekRule{Qt::Monday}, berlin(2008, 2, 10));
    const auto days = [&stat](Period period) {
        QList<QDate> firstDays;
        for (const auto& part : partsOf(period, stat))
            firstDays << part.firstDay;
        return firstDays;
    };
    EXPECT_TRUE(days(Period::all).isEmpty());
    stat.setToursArray(tours);
    EXPECT_EQ(days(Period::all),
              QList({QDate(2006, 1, 1), QDate(2007, 1, 1), QDate(2008, 1, 1), QDate(2009, 1, 1)}));
    EXPECT_EQ(partsOf(Period::all, stat)[2].statistics, PeriodStatistics());
    EXPECT_EQ(days(Period::year).size(), 12);
    EXPECT_EQ(days(Period::year).last(), QDate(2008, 12, 1));
    EXPECT_EQ(days(Period::month).size(), 29);
    EXPECT_EQ(days(Period::week).first(), QDate(2008, 2, 4));
    EXPECT_EQ(days(Period::week).last(), QDate(2008, 2, 10));

    // What a step to a part shows is what the part has said.
    stat.setDate(berlin(2007, 1, 1));
    for (const auto& [firstDay, part] : partsOf(Period::year, stat)) {
        stat.setDate(berlin(2007, firstDay.month(), 20));
        EXPECT_EQ(stat.monthStat(), part);
    }
    // A week at both ends of its year.
    stat.setDate(berlin(2007, 12, 31));
    EXPECT_EQ(days(Period::week).size(), 8);
    EXPECT_EQ(days(Period::week)[6], QDate(2007, 1, 7));
    EXPECT_EQ(days(Period::week)[7], QDate(2007, 12, 31));
}

TEST(PeriodTitle, NamesThePeriodOfADay)
{
    const auto title = [](Period period, Qt::DayOfWeek firstWeekday, const QLocale& locale) {
        return periodTitle(period, QDate(2007, 12, 31), WeekRule{firstWeekday}, locale).toStdString();
    };
    EXPECT_EQ(title(Period::all, Qt::Monday, QLocale::c()), "All");
    EXPECT_EQ(title(Period::year, Qt::Monday, QLocale::c()), "2007");
    EXPECT_EQ(title(Period::month, Qt::Monday, QLocale::c()), "December 2007");
    EXPECT_EQ(title(Period::month, Qt::Monday, QLocale(QLocale::German)), "Dezember 2007");
    EXPECT_EQ(title(Period::week, Qt::Monday, QLocale::c()), "Week 1, 2007") << "of the year of the day";
    EXPECT_EQ(title(Period::week, Qt::Sunday, QLocale::c()), "Week 1, 2007");
}

TEST(PeriodParts, AStartThatIsDamagedDoesNotMakeYearsWithoutEnd)
{
    const Tours tours{Ride{.start = berlin(2007, 3, 10)}.tour(), Ride{.start = berlin(2009, 3, 10)}.tour(),
                      Ride{.start = berlin(5'000'000, 3, 10)}.tour(), Ride{}.tour()};
    OdoStat stat(WeekRule{}, berlin(2007, 3, 10));
    stat.setToursArray(tours);
    EXPECT_EQ(partsOf(Period::all, stat).size(), 4U);
    stat.setDate(berlin(5'000'000, 3, 1));
    EXPECT_EQ(partsOf(Period::month, stat).size(), 31U);
}

} // namespace
} // namespace ridelog
