#include "model/OdoTour.h"
#include "tests/support/LogCapture.h"
#include "tests/support/Tours.h"

#include <gtest/gtest.h>

namespace ridelog {
namespace {

const QString time = QStringLiteral("time");

TEST(OdoTourChart, AnswersByNameAndIndex)
{
    const auto tour = tourOver(500, {{10, 400}, {-30, 300}, {5, 0}});
    const SimpleChart& altitude = *tour;
    EXPECT_EQ(altitude.countValues(), 4U);
    EXPECT_EQ(altitude.yValueFor(2), 480.0F);
    EXPECT_EQ(altitude.maxYValue(), 510.0F);

    const NamedXYChartArray& chart = *tour;
    EXPECT_EQ(chart.maxX(), tour->totalDistance()) << "the distance, as long as nothing else was said";
    EXPECT_EQ(chart.xValueAt(1), 0.4F);
    EXPECT_FALSE(chart.namesForYValue());
    EXPECT_EQ(chart.yValueAt(1, u"speed"), 72.0F);
    EXPECT_EQ(chart.minYForName(u"speed"), 0.0F);
    EXPECT_EQ(chart.minYForName(u"altitude"), 480.0F);
    EXPECT_EQ(chart.maxYForName(u"climbingPercentage"), tour->data()[1].climbingPercentage);
    EXPECT_EQ(chart.yValuesForName(u"pulse"), std::vector<float>(4, 90.0F));

    NamedXYChart& one = *tour;
    one.setNameForXValue(time);
    one.setNameForYValue(QStringLiteral("altitude"));
    EXPECT_EQ(one.maxX(), 60.0F);
    EXPECT_EQ(one.maxY(), 510.0F);
    EXPECT_EQ(one.yValueAt(3), 485.0F);
    EXPECT_EQ(chart.xValues(), (std::vector<float>{0, 20, 40, 60})) << "one x name for all who show it";
}

TEST(OdoTourChart, WhatIsNotThereIsZero)
{
    const auto tour = tourOver(500, {{10, 400}});
    EXPECT_EQ(tour->yValueAt(0, u"colour"), 0.0F);
    EXPECT_EQ(tour->yValueAt(2, u"altitude"), 0.0F);
    EXPECT_EQ(tour->yValueFor(2), 0.0F);
    EXPECT_EQ(tour->yValuesForName(u"colour"), std::vector<float>(2, 0.0F));
    const LogCapture log;
    EXPECT_EQ(tour->maxYForName(u"pulse"), 90.0F);
    EXPECT_EQ(log.lines(), QStringList{QStringLiteral("pulse, 90.000000")});
}

} // namespace
} // namespace ridelog
