#include "model/OdoTour.h"
#include "tests/support/LogCapture.h"
#include "tests/support/Tours.h"

#include <gtest/gtest.h>
#include <limits>

namespace ridelog {
namespace {

std::shared_ptr<OdoTour> smallTour()
{
    auto dictionary = startValues(500, 90);
    dictionary.tourData = {
        {.temperature = 18, .cadence = 80, .pulseChange = 2, .altitudeChange = 4, .distance = 150},
        {.temperature = 15, .cadence = 0, .pulseChange = -4, .altitudeChange = -2, .distance = 0}};
    return OdoTour::initWithOdoDataTourDict(dictionary, berlin(2007, 12, 31));
}

TEST(OdoTourSeries, FollowsFromStartValuesAndSamples)
{
    const LogCapture log;
    const auto tour = smallTour();
    const std::vector<SeriesEntry> expected{
        {.time = 0, .altitude = 500, .pulse = 90, .temperature = 18, .cadence = 80},
        {.time = 20,
         .altitude = 504,
         .distance = 0.15F,
         .pulse = 92,
         .power = OdoTour::calcPowerFrom(200, 20, 60, 20.0, 150, 4),
         .speed = 27.0F,
         .climbingPercentage = 4.0F / 150.0F * 100.0F,
         .temperature = 18,
         .cadence = 80},
        {.time = 40, .altitude = 502, .distance = 0.15F, .pulse = 88, .temperature = 15, .cadence = 0}};
    EXPECT_EQ(tour->data(), expected);
    EXPECT_NEAR(tour->data()[1].climbingPercentage, 2.6667, 1e-4);
    EXPECT_TRUE(log.lines().contains(QStringLiteral("calculateAllValues")));
    EXPECT_TRUE(log.lines().contains(QStringLiteral("calculateAllValues: 3 data added")));
}

TEST(OdoTourSeries, FillsTheFirstSummaryValues)
{
    const auto tour = smallTour();
    EXPECT_EQ(tour->avgMovingSpeed(), 27.0F);
    EXPECT_EQ(tour->avgPulse(), 60.0F) << "divided by the entries, the start entry's pulse not summed";
    EXPECT_EQ(tour->avgSpeed(), static_cast<float>(0.15F / (60 / 3600.0)));
    EXPECT_EQ(tour->maxPulse(), 92.0F);
    EXPECT_EQ(tour->maxSpeed(), 27.0F);
    EXPECT_EQ(tour->avgTemperature(), 11.0F);
    EXPECT_EQ(tour->maxTemperature(), 18.0F);
    EXPECT_EQ(tour->minTemperature(), 15.0F);
}

TEST(OdoTourSeries, PowerModel)
{
    const auto power = [](double distance, double rise) {
        return OdoTour::calcPowerFrom(200, 20, 60, 20.0, distance, rise);
    };
    EXPECT_EQ(power(200, 0), 345);
    EXPECT_EQ(power(200, 10), 775);
    EXPECT_EQ(power(300, -20), 187);
    EXPECT_EQ(power(150, -16), 0);
    EXPECT_EQ(power(10, 16), 0) << "a rise larger than the road";
    EXPECT_EQ(power(10, 10), 0);
    EXPECT_EQ(power(0, 0), 0);
    EXPECT_GT(OdoTour::calcPowerFrom(200, 20, 0, 20.0, 200, 0), 345) << "coasting has more drag";
    EXPECT_EQ(OdoTour::calcPowerFrom(200, 20, 60, 20.0, 1e9, 0), std::numeric_limits<int>::max());
    EXPECT_EQ(OdoTour::calcPowerFrom(200, 20, 60, 0, 200, 0), 0) << "no number at all";
}

TEST(OdoTourSeries, TabledSamplesAndOthersFollowTheSameFormulas)
{
    for (const int distance : {-10, -1, 0, 5, 10, 155, 630, 640, 1000000}) {
        for (const int rise : {-129, -128, -16, 0, 7, 121, 122, 500}) {
            const auto tour = tourOver(500, {{rise, distance}});
            const auto& entry = tour->data().back();
            EXPECT_EQ(entry.power, OdoTour::calcPowerFrom(200, 20, 60, 20.0, distance, rise));
            EXPECT_EQ(entry.speed, static_cast<float>(distance / 1000.0 * 180.0));
            EXPECT_EQ(entry.distance, static_cast<float>(distance) / 1000.0F);
            EXPECT_EQ(entry.climbingPercentage,
                      distance == 0 ? 0.0F
                                    : static_cast<float>(rise) / static_cast<float>(distance) * 100.0F);
        }
    }
    EXPECT_EQ(OdoTour::calcClimbingPercentageDeltaX(200, 10), 5.0F);
}

TEST(OdoTourSeries, TourWithoutADictionaryHasOneEntryOfZeros)
{
    const LogCapture log;
    const auto tour = OdoTour::initWithOdoDataTourDict(std::nullopt, berlin(2007, 3, 10));
    EXPECT_EQ(tour->data(), std::vector<SeriesEntry>(1));
    EXPECT_TRUE(log.lines().contains(QStringLiteral("EMPTY DATA")));
    EXPECT_EQ(tour->description().toStdString(), "2006-11-30 00:00:00 +0100") << "month 0, day 0";
    EXPECT_EQ(tour->calculatedValues().averagePulse, 0.0F);
    EXPECT_EQ(tour->calculatedValues().averageMovingSpeed, 0.0F);
    EXPECT_EQ(tour->avgTemperature(), std::nullopt);
    EXPECT_EQ(tour->maxTemperature(), std::nullopt);
    EXPECT_EQ(tour->minTemperature(), std::nullopt);
    EXPECT_EQ(tour->type(), std::nullopt);
}

TEST(OdoTourSeries, TourWithoutSamplesHasTheStartEntryAlone)
{
    const auto tour = OdoTour::initWithOdoDataTourDict(startValues(500, 90), berlin(2007, 12, 31));
    ASSERT_EQ(tour->data().size(), 1U);
    EXPECT_EQ(tour->data().front(), (SeriesEntry{.altitude = 500, .pulse = 90}));
    EXPECT_EQ(tour->avgMovingSpeed(), 0.0F);
    EXPECT_EQ(tour->avgTemperature(), 0.0F);
    EXPECT_EQ(tour->maxTemperature(), -9999.0F);
    EXPECT_EQ(tour->minTemperature(), 9999.0F);
}

TEST(OdoTourSeries, RunningSumsGoRoundInsteadOfOverflowing)
{
    auto dictionary =
        startValues(std::numeric_limits<std::int32_t>::max(), std::numeric_limits<std::int32_t>::min());
    dictionary.tourData = {
        {.pulseChange = -1, .altitudeChange = 1, .distance = std::numeric_limits<std::int32_t>::min()}};
    const auto tour = OdoTour::initWithOdoDataTourDict(dictionary, berlin(2007, 12, 31));
    EXPECT_EQ(tour->altitudeAtEnd(), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(tour->data().back().pulse, std::numeric_limits<std::int32_t>::max());
    tour->calculatedValues(); // no undefined arithmetic on the way
}

TEST(OdoTourSeries, FieldsAreFoundByName)
{
    const auto entry = smallTour()->data()[1];
    EXPECT_EQ(entry.valueForKey(u"altitude"), 504.0F);
    EXPECT_EQ(entry.valueForKey(u"distance"), 0.15F);
    EXPECT_EQ(entry.valueForKey(u"cadence"), 80.0F);
    EXPECT_EQ(entry.valueForKey(u"grade"), std::nullopt);
}

} // namespace
} // namespace ridelog
