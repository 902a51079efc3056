#include "simulator/RideGenerator.h"

#include "decode/OdoData.h"
#include "tests/support/Dates.h"

#include <QSet>

#include <gtest/gtest.h>

namespace ridelog {
namespace {

OdoData decode(const RideGenerator& generator)
{
    return OdoData::initWithData(generator.dump(), berlin(2007, 12, 31, 23, 59));
}

TEST(RideGenerator, SameWishesGiveTheSameBytes)
{
    EXPECT_TRUE(RideGenerator{.seed = 5}.dump() == RideGenerator{.seed = 5}.dump());
    EXPECT_FALSE(RideGenerator{.seed = 5}.dump() == RideGenerator{.seed = 6}.dump());
}

TEST(RideGenerator, AnyNumberOfToursDecodesWrappedOrNot)
{
    for (const int tours : {0, 1, 2, 3, 8, 50, 400, RideGenerator::mostTours}) {
        for (const bool wrapped : {false, true}) {
            if (wrapped && tours == 0)
                continue;
            for (unsigned seed = 1; seed <= 3; ++seed) {
                const auto decoded = decode({.seed = seed, .tours = tours, .wrapped = wrapped});
                ASSERT_EQ(decoded.toursArray().size(), static_cast<std::size_t>(tours)) << wrapped << seed;
                QSet<QString> starts;
                for (const auto& tour : decoded.toursArray())
                    starts.insert(tour->description());
                EXPECT_EQ(starts.size(), tours) << "each begins at its own time";
                if (wrapped) {
                    const auto& last = *decoded.toursArray().back();
                    EXPECT_LT(last.data().size(), last.tourData().size() + 1) << "stitched";
                }
            }
        }
    }
}

TEST(RideGenerator, RidesCouldHaveHappened)
{
    for (unsigned seed = 1; seed <= 20; ++seed) {
        for (const auto& tour : decode({.seed = seed}).toursArray()) {
            SCOPED_TRACE(testing::Message() << "seed " << seed << ", " << qPrintable(tour->description()));
            EXPECT_GT(tour->avgMovingSpeed(), 5.0F);
            EXPECT_LT(tour->maxSpeed(), 70.0F);
            EXPECT_GT(tour->avgPulse(), 90.0F);
            EXPECT_LT(tour->maxPulse(), 205.0F);
            EXPECT_LT(tour->maxClimbingPercentage(), 60.0F);
            EXPECT_LT(tour->maxDecendingPercentage(), 60.0F);
            EXPECT_GE(*tour->minTemperature(), 0.0F);
            EXPECT_LT(*tour->maxTemperature(), 40.0F);
            const auto [low, high] = std::ranges::minmax_element(tour->data(), {}, &SeriesEntry::altitude);
            EXPECT_GT(low->altitude, -300);
            EXPECT_LT(high->altitude, 3000);
        }
    }
}

} // namespace
} // namespace ridelog
