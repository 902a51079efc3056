#include "chart/ChartDrawing.h"

#include "chart/ChartPicture.h"
#include "chart/SeriesNames.h"
#include "format/UnitFormatters.h"
#include "library/DefaultsKeys.h"
#include "platform/Defaults.h"
#include "tests/support/ChartData.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/Tours.h"

#include <QImage>
#include <QPainter>

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace ridelog {
namespace {

using namespace SeriesNames;

constexpr int width = 400;
constexpr int height = 200;

/// A picture of a chart, and where its values stand in it.
class Drawing : public testing::Test, protected TemporaryFolder {
protected:
    Drawing() : defaults(path("settings")) { DefaultsKeys::registerApplicationDefaults(defaults); }

    void draw(const NamedXYChartArray& data, const QStringList& names, double pixelRatio = 1)
    {
        const auto x = UnitFormatters::chartXAxis(defaults);
        const auto y = UnitFormatters::chartYAxis(defaults, names.value(0));
        picture = QImage(QSize(width, height) * pixelRatio, QImage::Format_RGB32);
        picture.setDevicePixelRatio(pixelRatio);
        picture.fill(Qt::black);
        QPainter painter(&picture);
        drawing.emplace(ChartDrawing(painter,
                                     {.dataProvider = &data,
                                      .showNames = names,
                                      .width = width,
                                      .height = height,
                                      .settings = ChartSettings::fromDefaults(defaults),
                                      .formatterForXAxis = &x,
                                      .formatterForYAxis = &y,
                                      .measure = chartLabelMeasure()},
                                     indicator)
                            .draw());
    }
    /// The colour at view coordinates.
    QColor at(float x, float y) const
    {
        const auto ratio = static_cast<float>(picture.devicePixelRatio());
        return picture.pixelColor(static_cast<int>(x * ratio),
                                  static_cast<int>((height - y) * ratio - 0.01F));
    }
    QColor atValue(float x, float y) const
    {
        return at(drawing->calcRealXValueFrom(x), drawing->calcRealYValueFrom(y));
    }
    /// How many pixels have something of this colour, which is a clear one, on white.
    int count(const QColor& color) const
    {
        const auto fits = [](int pixel, int wanted) { return wanted > 200 ? pixel > 200 : pixel < 200; };
        int found = 0;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x) {
                const auto pixel = picture.pixelColor(x, y);
                found += fits(pixel.red(), color.red()) && fits(pixel.green(), color.green()) &&
                         fits(pixel.blue(), color.blue());
            }
        return found;
    }

    Defaults defaults;
    std::optional<float> indicator;
    QImage picture;
    std::optional<ChartScaling> drawing;
};

/// A flat road of 20 km at 505 m, 30 km/h and a pulse of 150.
const ChartData flat({0, 10, 20},
                     {{altitude, {505, 505, 505}}, {speed, {30, 30, 30}}, {pulse, {150, 150, 150}}});

TEST_F(Drawing, AxesAreRedLinesOneUnitWideAndSeriesHaveTheirColours)
{
    for (const double ratio : {1.0, 2.0, 1.5}) {
        draw(flat, {altitude, speed}, ratio);
        EXPECT_EQ(at(2, 2), QColor(Qt::white));
        const auto middle = (drawing->plotLeft() + drawing->plotRight()) / 2;
        EXPECT_EQ(at(middle, drawing->xAxisPosition() - 0.2F), QColor(Qt::red)) << ratio;
        EXPECT_EQ(at(middle + 3, drawing->xAxisPosition() + 2), QColor(Qt::white));
        EXPECT_EQ(at(drawing->leftAxisPosition() + 0.2F, 101), QColor(Qt::red)) << ratio;
        EXPECT_EQ(at(drawing->secondAxisPosition() + 0.2F, 101), QColor(Qt::red)) << ratio;
        EXPECT_GT(count(Qt::blue), width * ratio / 2);
        EXPECT_GT(count(Qt::green), width * ratio / 2);
    }
}

TEST_F(Drawing, SpeedHasASecondAxisOnlyIfTheRiderWantsOne)
{
    defaults.setValue(DefaultsKeys::speed2ndAxis, false);
    draw(flat, {altitude, speed});
    EXPECT_EQ(at(drawing->secondAxisPosition() + 0.2F, 101), QColor(Qt::white));
    EXPECT_GT(drawing->secondChartOffsetX(), drawing->chartOffsetX() / 2) << "its margin stays";
}

TEST_F(Drawing, ZonesLieBeneathEverythingAndFade)
{
    draw(flat, {pulse});
    const auto in = QColor::fromRgbF(189 / 255.0F, 1, 205 / 255.0F);
    EXPECT_EQ(atValue(5, 145), in);
    EXPECT_NE(atValue(5, 120), in);
    EXPECT_NE(atValue(5, 120), QColor(Qt::white));
    EXPECT_EQ(atValue(5, 100), QColor(Qt::white));
    EXPECT_GT(count(Qt::gray), width / 2) << "the line lies on them";

    defaults.setValue(DefaultsKeys::pulseUseGradient, false);
    draw(flat, {pulse});
    EXPECT_EQ(atValue(5, 120), atValue(5, 128)) << "solid";
    defaults.setValue(DefaultsKeys::pulseMinPulse, 150);
    defaults.setValue(DefaultsKeys::pulseMaxPulse, 100);
    draw(flat, {pulse});
    EXPECT_EQ(atValue(5, 125), in) << "in whatever order they were given";
    defaults.setValue(DefaultsKeys::pulseDrawPulseRange, false);
    draw(flat, {pulse});
    EXPECT_EQ(atValue(5, 125), QColor(Qt::white));
}

TEST_F(Drawing, SeriesAreCutOffAtTheEndOfTheRoadAndALittleAboveTheTop)
{
    defaults.setValue(DefaultsKeys::useManualRange, true);
    defaults.setValue(DefaultsKeys::minRange, 450);
    defaults.setValue(DefaultsKeys::maxRange, 500);
    defaults.setValue(DefaultsKeys::colorAltitude, ColourComponents{1, 0, 1, 1});
    // Far above the top, and a tenth of a tic beyond the end
    const ChartData steep({0, 10, 20, 20.05F}, {{altitude, {460, 480, 3000, 460}}});
    draw(steep, {altitude});
    EXPECT_GT(count(Qt::magenta), 20);
    for (int x = 0; x < width; ++x) {
        EXPECT_NE(picture.pixelColor(x, 5), QColor(Qt::magenta));
        EXPECT_NE(picture.pixelColor(x, height - 5), QColor(Qt::magenta));
    }
    for (int y = 0; y < height; ++y)
        EXPECT_NE(picture.pixelColor(static_cast<int>(drawing->plotRight()) + 4, y), QColor(Qt::magenta));
}

TEST_F(Drawing, TheIndicatorIsALineOfTwoUnits)
{
    indicator = 10.0F;
    draw(flat, {altitude});
    const auto x = drawing->calcRealXValueFrom(10);
    EXPECT_EQ(at(x, 60), QColor(Qt::red));
    EXPECT_EQ(at(x - 0.5F, 60), QColor(Qt::red));
    EXPECT_EQ(at(x + 3, 60), QColor(Qt::white));
}

TEST_F(Drawing, ALongSeriesLooksLikeItsColumns)
{
    // 200 samples in a column: the highest and lowest of each have to be seen.
    std::vector<float> x;
    std::vector<float> y;
    for (int i = 0; i < 80'000; ++i) {
        x.push_back(static_cast<float>(i) / 4000);
        y.push_back(i % 200 == 77 ? 900.0F : 500.0F);
    }
    const ChartData spikes(x, {{altitude, y}});
    draw(spikes, {altitude});
    for (float road = 1; road < 19; road += 0.5F)
        EXPECT_NE(atValue(road, 700), QColor(Qt::white)) << road;
    EXPECT_GT(count(Qt::blue), 20'000);
}

TEST_F(Drawing, ALongSeriesLooksLikeAShortOneOfTheSameShape)
{
    const auto hills = [](int count) {
        std::vector<float> x;
        std::vector<float> y;
        for (int i = 0; i <= count; ++i) {
            x.push_back(40.0F * static_cast<float>(i) / static_cast<float>(count));
            y.push_back(605 + 90 * std::sin(x.back()) + (x.back() > 30 ? 100.0F : 0.0F));
        }
        return ChartData(x, {{altitude, y}});
    };
    for (const double ratio : {1.0, 1.25, 2.0}) {
        draw(hills(700), {altitude}, ratio);
        const auto byPoints = picture;
        draw(hills(70'000), {altitude}, ratio);
        int unlike = 0;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                unlike += std::abs(qRed(picture.pixel(x, y)) - qRed(byPoints.pixel(x, y))) > 200;
        EXPECT_LT(unlike, count(Qt::blue) / 8) << ratio;
    }
}

TEST_F(Drawing, WhateverTheNumbersAreItIsDrawn)
{
    constexpr auto nan = std::numeric_limits<float>::quiet_NaN();
    constexpr auto infinity = std::numeric_limits<float>::infinity();
    constexpr auto largest = std::numeric_limits<float>::max();
    const std::vector<std::vector<float>> odd{{},
                                              {0},
                                              {0, 0, 0},
                                              {nan, nan},
                                              {0, infinity, -infinity},
                                              {-largest, largest},
                                              {-20, -400, -3},
                                              {1e-30F, 2e-30F}};
    for (const auto& x : odd) {
        for (const auto& y : odd) {
            const ChartData data(x, {{altitude, y}, {speed, y}, {pulse, y}});
            draw(data, {altitude, speed, pulse});
            EXPECT_EQ(at(1, 1), QColor(Qt::white));
        }
    }
    defaults.setValue(DefaultsKeys::pulseMinPulse, std::numeric_limits<int>::min());
    defaults.setValue(DefaultsKeys::pulseMaxPulse, std::numeric_limits<int>::max());
    draw(flat, {pulse, altitude});
    draw(*tourOver(500, {}), {altitude, speed, pulse});
    EXPECT_GT(count(Qt::red), 100) << "axes without tics";
}

TEST_F(Drawing, PicturesAreOfTheTypeThatTheirNameEndsWith)
{
    const auto formatter = UnitFormatters::chartXAxis(defaults);
    const ChartScaling::Chart chart{.dataProvider = &flat,
                                    .showNames = {altitude, speed},
                                    .width = width,
                                    .height = height,
                                    .settings = ChartSettings::fromDefaults(defaults),
                                    .formatterForXAxis = &formatter,
                                    .formatterForYAxis = &formatter,
                                    .measure = chartLabelMeasure()};
    const std::pair<const char*, QByteArray> types[]{
        {"a.jpg", "\xff\xd8\xff"}, {"a.JPEG", "\xff\xd8\xff"}, {"a.png", "\x89PNG"}, {"a.pdf", "%PDF-"}};
    for (const auto& [name, begin] : types) {
        const auto file = chartPicture(chart, {}, QString::fromLatin1(name));
        EXPECT_TRUE(file.error.isEmpty()) << name;
        EXPECT_TRUE(file.bytes.startsWith(begin)) << name;
    }
    const auto image = QImage::fromData(chartPicture(chart, {}, QStringLiteral("b.jpg")).bytes);
    EXPECT_EQ(image.size(), QSize(width, height));
    const auto svg = chartPicture(chart, {}, QStringLiteral("a.svg")).bytes;
    EXPECT_TRUE(svg.contains("viewBox=\"0 0 400 200\""));
    EXPECT_TRUE(svg.contains("#0000ff"));
    EXPECT_EQ(chartPicture(chart, {}, QStringLiteral("chart")).error,
              QStringLiteral("pictures end with .jpg, .jpeg, .png, .svg, .pdf"));
}

TEST(ColourInterpolation, GoesFromTheSecondToTheFirst)
{
    const auto from = QColor::fromRgbF(0, 0, 0, 1);
    const auto to = QColor::fromRgbF(1, 0.5F, 0, 0);
    EXPECT_EQ(colorByInterpolatingColor(to, from, 0, 4), from);
    EXPECT_EQ(colorByInterpolatingColor(to, from, 4, 4), to);
    EXPECT_NEAR(static_cast<double>(colorByInterpolatingColor(to, from, 1, 4).redF()), 0.25, 0.001);
}

} // namespace
} // namespace ridelog
