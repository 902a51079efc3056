#include "chart/ChartScaling.h"

#include "format/MultipFormatter.h"
#include "model/SeriesNames.h"
#include "platform/Defaults.h"
#include "tests/support/ChartData.h"
#include "tests/support/TemporaryFolder.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace ridelog {
namespace {

using namespace SeriesNames;

const QStringList altitudeOnly{altitude};

/// Labels are 7 units a character wide and 14 high, and have no unit.
class Scaling : public testing::Test, protected TemporaryFolder {
protected:
    Scaling()
    {
        chart.width = 700;
        chart.height = 300;
        chart.measure = [](const QString& label) {
            return QSizeF(7.0 * static_cast<double>(label.size()), 14);
        };
    }

    /// A road and what was met on it: lowest and highest altitude, top speed.
    void ride(float length, float lowest = 400, float highest = 900, float fastest = 40)
    {
        data = ChartData({0, length},
                         {{altitude, {lowest, highest}}, {speed, {0, fastest}}, {pulse, {90, 150}}});
        chart.dataProvider = &data;
    }
    ChartScaling pass(const QStringList& names)
    {
        chart.showNames = names;
        ChartScaling scaling(chart);
        scaling.calcValues();
        scaling.calcXAxis();
        if (!names.isEmpty())
            scaling.calcYAxisForName(names.first());
        return scaling;
    }
    /// The same with a plot of this width, margins 38 and 19.
    ChartScaling passOver(float plotWidth)
    {
        chart.width = plotWidth + 38 * 1.5F;
        return pass(altitudeOnly);
    }

    ChartData data{{}, {}};
    ChartScaling::Chart chart;
};

TEST_F(Scaling, MarginsAreMeasuredOnTheAltitude)
{
    ride(42.3F, 437.5F, 1234.2F);
    EXPECT_EQ(pass(altitudeOnly).chartOffsetX(), 38.0F);
    EXPECT_EQ(pass(altitudeOnly).secondChartOffsetX(), 19.0F);
    EXPECT_EQ(pass({pulse}).chartOffsetX(), 38.0F) << "whatever is shown";
    const auto both = pass({altitude, speed});
    EXPECT_FALSE(both.draw2ndAxis()) << "not before the rider wants it";
    EXPECT_EQ(both.secondChartOffsetX(), 19.0F + 14.0F);

    chart.settings.draw2ndAxis = true;
    const auto second = pass({altitude, pulse, speed});
    EXPECT_TRUE(second.isOn2ndAxis(2));
    EXPECT_FALSE(second.isOn2ndAxis(1));
    EXPECT_FALSE(pass({speed, altitude}).draw2ndAxis()) << "speed has the first one";
    EXPECT_EQ(pass({speed, altitude}).secondChartOffsetX(), 19.0F);

    chart.settings.useManualRange = true;
    chart.settings.maxRange = 80;
    EXPECT_EQ(pass(altitudeOnly).chartOffsetX(), 24.0F);
}

TEST_F(Scaling, TheRoadEndsOnAWholeTic)
{
    const struct {
        float road;
        float tic;
        int count;
    } cases[] = {{30, 1, 30},    {30.5F, 4, 8}, {40, 4, 10},   {40.3F, 4, 10},  {40.5F, 4, 11},
                 {42.3F, 4, 11}, {150, 10, 15}, {500, 20, 25}, {500.1F, 60, 9}, {0.05F, 1, 0}};
    for (const auto& [road, tic, count] : cases) {
        ride(road, 437.5F, 1234.2F);
        const auto scaling = passOver(600);
        EXPECT_EQ(scaling.majorXTicDistance(), tic) << road;
        EXPECT_EQ(scaling.xTicCount(), count) << road;
        EXPECT_EQ(scaling.maxXAxisValue(), static_cast<float>(count) * tic) << road;
        EXPECT_EQ(scaling.xFactor(), count == 0 ? 0 : 600.0F / (static_cast<float>(count) * tic)) << road;
        EXPECT_EQ(scaling.xTics().size(), count == 0 ? 0U : static_cast<std::size_t>(count) + 1) << road;
    }
}

TEST_F(Scaling, ThereIsRoomForEveryLabel)
{
    ride(7200, 437.5F, 1234.2F);
    chart.useTimeFormatForX = true;
    const auto scaling = passOver(600);
    EXPECT_EQ(scaling.majorXTicDistance(), 640.0F);
    EXPECT_EQ(scaling.xTicCount(), 12);
    EXPECT_EQ(scaling.maxXAxisValue(), 7680.0F);
    EXPECT_EQ(scaling.xTics()[1].label, QStringLiteral("0:10:40"));
    EXPECT_EQ(scaling.xTics()[8].label, QStringLiteral("1:25:20"));

    chart.useTimeFormatForX = false;
    ride(30, 437.5F, 1234.2F);
    EXPECT_EQ(passOver(300).majorXTicDistance(), 2.0F);
    EXPECT_EQ(passOver(20).majorXTicDistance(), 32.0F);
}

TEST_F(Scaling, AltitudesAreRoundedToTens)
{
    const struct {
        float lowest;
        float highest;
        float bottom;
        float top;
    } cases[] = {{437.5F, 1234.2F, 430, 1240}, {430, 1240, 430, 1250}, {0, 0, 0, 0},    {-5, 9, -10, 10},
                 {-20, -10, -30, 0},           {-25, -21, -30, -20},   {9, 150, 0, 160}};
    for (const auto& [lowest, highest, bottom, top] : cases) {
        ride(10, lowest, highest);
        const auto scaling = pass(altitudeOnly);
        EXPECT_EQ(scaling.minYAxisValue(), bottom) << lowest;
        EXPECT_EQ(scaling.maxYAxisValue(), top) << highest;
    }
    ride(10, 437.5F, 1234.2F, 150);
    const auto scaling = pass({speed});
    EXPECT_EQ(scaling.minYAxisValue(), 0.0F);
    EXPECT_EQ(scaling.maxYAxisValue(), 160.0F);
    EXPECT_EQ(pass(altitudeOnly).yFactor(), 250.0F / 810.0F);
}

TEST_F(Scaling, TheManualRangeIsForTheAltitude)
{
    ride(10);
    chart.settings.useManualRange = true;
    chart.settings.minRange = 5.5F;
    chart.settings.maxRange = 803;
    EXPECT_EQ(pass(altitudeOnly).minYAxisValue(), 5.5F);
    EXPECT_EQ(pass(altitudeOnly).maxYAxisValue(), 803.0F);
    EXPECT_EQ(pass({pulse}).maxYAxisValue(), 160.0F);
}

TEST_F(Scaling, YTicsStandAtEqualSteps)
{
    ride(42.3F, 437.5F, 1234.2F);
    const auto tics = pass(altitudeOnly).yTics(false);
    ASSERT_EQ(tics.size(), 13U);
    QStringList labels;
    for (const auto& tic : tics)
        labels += tic.label;
    EXPECT_EQ(labels.mid(0, 4), (QStringList{QStringLiteral("430"), QStringLiteral("494"),
                                             QStringLiteral("559"), QStringLiteral("624")}));
    EXPECT_EQ(labels.last(), QStringLiteral("1240"));
    EXPECT_EQ(tics.front().position, 25.0F);
    EXPECT_EQ(tics.back().position, 275.0F);
    EXPECT_GE(tics.back().position - tics[tics.size() - 2].position, 12.0F);
}

TEST_F(Scaling, FromAClickBackToTheValue)
{
    ride(42.3F, 437.5F, 1234.2F);
    const auto scaling = passOver(600);
    EXPECT_FLOAT_EQ(static_cast<float>(
                        scaling.calcXValueFromPoint(static_cast<double>(scaling.calcRealXValueFrom(12.5F)))),
                    12.5F);
    EXPECT_LT(scaling.calcXValueFromPoint(3), 0) << "beyond the ends as well";
}

TEST_F(Scaling, NothingIsDividedByNothing)
{
    constexpr auto nan = std::numeric_limits<float>::quiet_NaN();
    constexpr auto infinity = std::numeric_limits<float>::infinity();
    constexpr auto largest = std::numeric_limits<float>::max();
    const std::vector<float> odd{0, nan, infinity, -infinity, largest, -largest, 1e-40F, -5};
    for (const auto x : odd) {
        for (const auto low : odd) {
            for (const auto high : odd) {
                for (const float size : {0.0F, 30.0F, 57.5F, 700.0F}) {
                    data = ChartData({0, x}, {{altitude, {low, high}}, {speed, {high, low}}});
                    chart.dataProvider = &data;
                    chart.width = chart.height = size;
                    const auto scaling = pass({altitude, speed});
                    ASSERT_TRUE(std::isfinite(scaling.xFactor()) && std::isfinite(scaling.yFactor()));
                    ASSERT_LE(scaling.xTics().size(), 1000U);
                    for (const auto& tic : scaling.yTics(false))
                        ASSERT_TRUE(std::isfinite(tic.position));
                    ASSERT_TRUE(std::isfinite(scaling.calcXValueFromPoint(10)));
                }
            }
        }
    }
    chart.dataProvider = nullptr;
    const auto scaling = pass({altitude, speed});
    EXPECT_EQ(scaling.xFactor(), 0.0F);
    EXPECT_TRUE(scaling.xTics().empty() && scaling.yTics(false).empty());
    EXPECT_EQ(scaling.calcRealXValueFrom(12), scaling.chartOffsetX()) << "all values at the start";
}

} // namespace
} // namespace ridelog
