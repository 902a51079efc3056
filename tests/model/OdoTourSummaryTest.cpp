#include "model/OdoTour.h"
#include "tests/support/LogCapture.h"
#include "tests/support/Tours.h"

#include <cmath>
#include <gtest/gtest.h>

namespace ridelog {
namespace {

struct RunsCase {
    std::initializer_list<int> altitudes;
    int gain;
    int climbs;
    int descents;
};

TEST(OdoTourSummary, RunsCountOnceTheyExceedTheirThreshold)
{
    const RunsCase cases[]{
        {{100, 102, 104, 104, 106, 110, 109}, 10, 0, 0}, // an equal altitude ends a run
        {{100, 101, 102, 103}, 0, 0, 0},                 // 3 m are not more than 3 m
        {{100, 101, 102, 103, 104}, 4, 0, 0},
        {{0, 5, 11, 11, 0}, 11, 1, 1},
        {{0, 10, 0, 10, 0}, 20, 0, 0},                   // 10 m are not more than 10 m
        {{0, 6, 12, 18, 24, 12, 6, 0, 0, 11}, 35, 2, 1}, // a long run counts once
        {{50, 39, 28, 40, 51, 62, 60, 58, 30}, 34, 1, 2},
        {{100}, 0, 0, 0},
    };
    for (const auto& [altitudes, gain, climbs, descents] : cases) {
        const auto tour = tourThrough(altitudes);
        SCOPED_TRACE(testing::PrintToString(std::vector<int>(altitudes)));
        EXPECT_EQ(tour->elevationGain(), gain);
        EXPECT_EQ(tour->climbingCount(), climbs);
        EXPECT_EQ(tour->descendingCount(), descents);
    }
}

TEST(OdoTourSummary, LengthsOfClimbs)
{
    // Two climbs of 400 m and 200 m, a descent of 600 m between them.
    const auto tour = tourThrough({100, 101, 102, 99, 98, 97, 99, 99});
    EXPECT_FLOAT_EQ(tour->maxClimbingDistance(), 0.4F);
    EXPECT_FLOAT_EQ(tour->avgClimbingDistance(), 0.3F);
    EXPECT_FLOAT_EQ(tour->maxDescendingDistance(), 0.6F);

    // A climb still open at the end is counted, but has no length.
    const auto open = tourThrough({100, 101, 100, 105, 110});
    EXPECT_FLOAT_EQ(open->maxClimbingDistance(), 0.2F);
    EXPECT_FLOAT_EQ(open->avgClimbingDistance(), 0.1F);

    const auto flat = tourThrough({100, 100, 100});
    EXPECT_EQ(flat->maxClimbingDistance(), 0.0F);
    EXPECT_EQ(flat->avgClimbingDistance(), 0.0F);
    EXPECT_EQ(flat->maxDescendingDistance(), 0.0F);
}

TEST(OdoTourSummary, GradesAndAngles)
{
    const LogCapture log;
    const auto tour = tourOver(100, {{10, 200}, {50, 150}, {1, 100}, {-8, 100}, {-2, 100}, {-1, 10}});
    EXPECT_FLOAT_EQ(tour->maxClimbingPercentage(), 50.0F / 150 * 100);
    EXPECT_FLOAT_EQ(tour->avgClimbingPercentage(), (5.0F + 50.0F / 150 * 100) / 2)
        << "a rise of 1 m has no part";
    EXPECT_NEAR(tour->maxDecendingPercentage(), 10.0, 1e-4);
    EXPECT_NEAR(tour->avgDecendingPercentage(), 5.0, 1e-4);
    EXPECT_NEAR(tour->maxClimbingAngle(), 19.4712, 1e-3);
    EXPECT_NEAR(tour->maxDecendingAngle(), -5.7392, 1e-3);
    EXPECT_FLOAT_EQ(tour->maxClimbingPercentage(), 50.0F / 150 * 100);
    ASSERT_EQ(log.lines().filter(QStringLiteral("Big Value")).size(), 1) << "computed once";
    EXPECT_TRUE(log.lines()
                    .filter(QStringLiteral("Big Value"))
                    .front()
                    .startsWith(QStringLiteral("Big Value: 33.33")));
}

TEST(OdoTourSummary, SteepDescentsAreLoggedToo)
{
    const LogCapture log;
    EXPECT_FLOAT_EQ(tourOver(100, {{-40, 100}})->maxDecendingPercentage(), 40.0F);
    EXPECT_EQ(log.lines().filter(QStringLiteral("Big Value")).size(), 1);
}

TEST(OdoTourSummary, RiseLargerThanItsRoadHasAGradeButNoAngle)
{
    const auto tour = tourOver(100, {{16, 10}, {5, 100}, {-16, 10}, {-5, 100}});
    EXPECT_FLOAT_EQ(tour->maxClimbingPercentage(), 160.0F);
    EXPECT_NEAR(tour->maxClimbingAngle(), 2.8660, 1e-3);
    EXPECT_NEAR(tour->maxDecendingAngle(), -2.8660, 1e-3);
    EXPECT_FLOAT_EQ(tourOver(100, {{10, 10}})->maxClimbingAngle(), 90.0F);
}

TEST(OdoTourSummary, NothingToCountGivesZeroWithoutASign)
{
    const auto tour = tourThrough({100, 100});
    for (const float value :
         {tour->maxClimbingAngle(), tour->maxDecendingAngle(), tour->maxClimbingPercentage(),
          tour->avgClimbingPercentage(), tour->maxDecendingPercentage(), tour->avgDecendingPercentage()}) {
        EXPECT_EQ(value, 0.0F);
        EXPECT_FALSE(std::signbit(value));
    }
}

TEST(OdoTourSummary, PowerCountsTheStartEntry)
{
    const auto tour = tourOver(100, {{0, 200}});
    EXPECT_EQ(tour->maxPower(), 345.0F);
    EXPECT_EQ(tour->avgPower(), 172.5);
}

TEST(OdoTourSummary, AllValuesAreThereWhenAskedForTogether)
{
    const auto tour = tourThrough({100, 120, 90});
    const auto& values = tour->calculatedValues();
    int present = 0;
    forEachValue(values, [&](QStringView, const auto& value) { present += value.has_value(); });
    EXPECT_EQ(present, 20);
    EXPECT_EQ(values.elevationGain, tour->elevationGain());
    EXPECT_EQ(values.avgDecendingPercentage, tour->avgDecendingPercentage());
}

} // namespace
} // namespace ridelog
