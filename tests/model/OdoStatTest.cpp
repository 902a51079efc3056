#include "model/OdoStat.h"

#include "tests/support/LogCapture.h"
#include "tests/support/Rides.h"

#include <QRegularExpression>

#include <gtest/gtest.h>
#include <map>
#include <set>

namespace ridelog {
namespace {

constexpr WeekRule mondayWeeks{Qt::Monday};
constexpr WeekRule sundayWeeks{Qt::Sunday};

PeriodStatistics statisticsOf(const Tours& tours, Period period = Period::all,
                              const QDateTime& date = berlin(2007, 3, 15), WeekRule rule = mondayWeeks)
{
    OdoStat stat(rule, date);
    stat.setToursArray(tours);
    return stat.stat(period);
}

/// How many of the tours, each of which lasts an hour, the week counts.
double countedInWeek(const Tours& tours, const QDateTime& date, WeekRule rule)
{
    return statisticsOf(tours, Period::week, date, rule).duration / 3600;
}

TEST(OdoStat, EachToursAverageWeighsOne)
{
    const auto date = berlin(2007, 3, 15);
    const auto speeds = statisticsOf({Ride{.start = date, .entries = 1800, .metres = 100'000}.tour(),
                                      Ride{.start = date, .entries = 6, .metres = 1'000}.tour()});
    EXPECT_NEAR(speeds.averageSpeed, 20.0, 1e-3);
    EXPECT_NEAR(speeds.distance, 101.0, 1e-3);
    EXPECT_EQ(speeds.duration, 36'120);
    EXPECT_GT(speeds.maxSpeed, 30.0F);

    // 120.9 and 131.2 lose their fractions one by one.
    const auto pulses = statisticsOf({Ride{.start = date, .entries = 10, .pulseSum = 1'209}.tour(),
                                      Ride{.start = date, .entries = 10, .pulseSum = 1'312}.tour()});
    EXPECT_EQ(pulses.averagePulse, 125.5F);
    EXPECT_EQ(pulses.maxPulse, 146);
    EXPECT_EQ(statisticsOf({Ride{.start = date, .pulseSum = 180 * 120}.tour()}).heartBeats, 7'200);
    EXPECT_EQ(statisticsOf({Ride{.start = date, .entries = 2, .pulseSum = 2 * 100}.tour()}).heartBeats, 66)
        << "two thirds of 100, truncated";
    const auto below = statisticsOf({Ride{.start = date, .entries = 10, .pulseSum = -1'209}.tour()});
    EXPECT_EQ(below.averagePulse, -120.0F);
    EXPECT_EQ(below.maxPulse, 0) << "the search for it begins at 0";

    // The second one has no climb, but weighs as much as the first.
    const auto climbs = statisticsOf({tourOver(100, {{20, 200}, {-10, 200}}), tourOver(100, {{0, 200}})});
    EXPECT_FLOAT_EQ(climbs.averageClimbingPerc, 5.0F);
    EXPECT_FLOAT_EQ(climbs.averageDecendingPerc, 2.5F);
    EXPECT_EQ(climbs.elevationGain, 20);
    EXPECT_EQ(climbs.valueForKey(u"elevationGain"), 20.0);
    EXPECT_FALSE(climbs.valueForKey(u"gain"));
}

TEST(OdoStat, DistancesAreAddedInSinglePrecision)
{
    const Tours tours(1000, Ride{.start = berlin(2007, 3, 15), .entries = 2, .metres = 100}.tour());
    EXPECT_EQ(statisticsOf(tours).distance, 99.99905F);
}

TEST(OdoStat, RemovedToursAndNoToursCountNowhere)
{
    const auto date = berlin(2007, 3, 15);
    const Tours tours{Ride{.start = date, .metres = 1'000, .pulseSum = 100}.tour()};
    tours.front()->setRemoved(true);
    for (const auto period : allPeriods) {
        OdoStat stat(mondayWeeks, date);
        EXPECT_EQ(stat.stat(period), PeriodStatistics());
        EXPECT_FALSE(stat.firstTour(period) || stat.lastTour(period));
        stat.setStat(period, std::nullopt);
        stat.setToursArray(tours);
        EXPECT_EQ(stat.stat(period), PeriodStatistics());
        EXPECT_FALSE(stat.firstTour(period) || stat.lastTour(period));
    }
}

TEST(OdoStat, APeriodIsThatOfEachToursOwnCalendar)
{
    const QTimeZone newYork("America/New_York");
    // In Berlin the first of them lies in the next year, in New York the last.
    const auto silvester = CalendarDate::fromFields(2007, 12, 31, 23, 30, 0, newYork);
    const auto newYear = berlin(2008, 1, 1, 0, 30);
    const Tours tours{Ride{.start = silvester}.tour(), Ride{.start = newYear}.tour()};
    OdoStat stat(mondayWeeks, berlin(2007, 12, 1));
    stat.setToursArray(tours);
    EXPECT_EQ(stat.yearStat().duration, 3'600);
    EXPECT_EQ(stat.firstTourYear(), silvester);
    EXPECT_EQ(stat.monthStat().duration, 3'600);
    EXPECT_EQ(stat.weekStat().duration, 0);
    // Which came first is a matter of instants.
    EXPECT_EQ(stat.globalStat().duration, 7'200);
    EXPECT_EQ(stat.firstTourGlobal(), newYear);
    EXPECT_EQ(stat.lastTourGlobal(), silvester);
    EXPECT_EQ(stat.lastTourGlobal()->timeZone(), newYork);
    // The chosen date has a calendar of its own as well.
    EXPECT_EQ(statisticsOf(tours, Period::month, silvester).duration, 3'600);
}

TEST(OdoStat, WeeksEndWithTheYear)
{
    Tours tours;
    // From Sunday to Saturday, and the day after.
    for (auto day = berlin(2007, 12, 30); day <= berlin(2008, 1, 6); day = day.addDays(1))
        tours.push_back(Ride{.start = day}.tour());
    EXPECT_EQ(countedInWeek(tours, berlin(2008, 1, 2), sundayWeeks), 5);
    EXPECT_EQ(countedInWeek(tours, berlin(2008, 1, 2), mondayWeeks), 6);
    EXPECT_EQ(countedInWeek(tours, berlin(2007, 12, 31), sundayWeeks), 2);
    EXPECT_EQ(countedInWeek(tours, berlin(2007, 12, 30), mondayWeeks), 1);
    // The last days of 2008 are in a week 1 as well: from Sunday 28th and from Monday 29th on.
    for (const int day : {27, 28, 29, 31})
        tours.push_back(Ride{.start = berlin(2008, 12, day)}.tour());
    EXPECT_EQ(countedInWeek(tours, berlin(2008, 1, 2), sundayWeeks), 5 + 3);
    EXPECT_EQ(countedInWeek(tours, berlin(2008, 1, 2), mondayWeeks), 6 + 2);
}

TEST(OdoStat, OnlyWhatTheDateHasLeftIsComputedAnew)
{
    // Before each move a tour like no other is added on the day it leads to, which only new results know.
    struct Move {
        QDateTime date;
        std::set<Period> computed;
    };
    const auto march = berlin(2007, 3, 15);
    const Move moves[]{{berlin(2007, 3, 15, 13), {Period::week}},
                       {berlin(2007, 3, 20), {Period::week}},
                       {berlin(2007, 3, 20), {}},
                       {berlin(2007, 3, 20).toTimeZone(QTimeZone("Asia/Tokyo")), {Period::week}},
                       {berlin(2007, 4, 20), {Period::month, Period::week}},
                       {berlin(2008, 4, 20), {Period::year, Period::month, Period::week}},
                       {march, {Period::year, Period::month, Period::week}}};
    Tours tours{Ride{.start = march}.tour()};
    OdoStat stat(mondayWeeks, march);
    stat.setToursArray(tours);
    for (const auto period : allPeriods)
        EXPECT_EQ(stat.stat(period).duration, 3'600);
    std::set<Period> told;
    QObject::connect(&stat, &OdoStat::statChanged, [&told](Period period) { told.insert(period); });
    for (const auto& [date, computed] : moves) {
        tours.push_back(Ride{.start = date, .metres = static_cast<int>(tours.size()) * 100}.tour());
        std::map<Period, PeriodStatistics> before;
        for (const auto period : allPeriods)
            before[period] = stat.stat(period);
        EXPECT_TRUE(told.empty()) << "a request tells nothing";
        stat.setDate(date);
        EXPECT_EQ(told, computed) << qPrintable(date.toString());
        for (const auto period : allPeriods)
            EXPECT_EQ(stat.stat(period) != before[period], computed.contains(period))
                << qPrintable(date.toString()) << static_cast<int>(period);
        told.clear();
    }
    stat.setToursArray(tours);
    EXPECT_EQ(stat.globalStat().duration, 3'600) << "computed once";
    stat.setGlobalStat(std::nullopt);
    EXPECT_EQ(told, std::set{Period::all});
    EXPECT_EQ(stat.globalStat().duration, 3'600 * 8.0);
}

TEST(OdoStat, TheLogNamesTheStepsAndTheirTime)
{
    const LogCapture log;
    OdoStat stat(mondayWeeks, berlin(2007, 3, 15));
    stat.setDate(stat.date());
    for (const auto period : allPeriods) {
        stat.stat(period);
        stat.stat(period);
    }
    ASSERT_EQ(log.lines().size(), 5);
    static const QRegularExpression stopped(QStringLiteral("^\\[_calcGlobalStat\\] stopped at:-0\\.\\d{3}$"));
    EXPECT_TRUE(log.lines()[3].contains(stopped)) << qPrintable(log.lines()[3]);
    auto others = log.lines();
    others.removeAt(3);
    EXPECT_EQ(others, QStringList({QStringLiteral("[setDate]"), QStringLiteral("[setDate]"),
                                   QStringLiteral("[_calcGlobalStat]"), QStringLiteral("[_calcYearStat]")}));
}

} // namespace
} // namespace ridelog
