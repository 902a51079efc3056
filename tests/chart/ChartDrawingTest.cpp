#include "chart/ChartDrawing.h"

#include "chart/ChartPicture.h"
#include "format/UnitFormatters.h"
#include "library/DefaultsKeys.h"
#include "model/SeriesNames.h"
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
        xFormatter = UnitFormatters::chartXAxis(defaults);
        yFormatter = UnitFormatters::chartYAxis(defaults, names.value(0));
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
                                      .formatterForXAxis = &*xFormatter,
                                      .formatterForYAxis = &*yFormatter,
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
    /// Whether it is the colour, mixed with white by half at the most.
    static bool isMostly(const QColor& pixel, const QColor& color)
    {
        const auto isNear = [](int a, int b) { return std::abs(a - b) < 130; };
        return isNear(pixel.red(), color.red()) && isNear(pixel.green(), color.green()) &&
               isNear(pixel.blue(), color.blue());
    }
    /// The pixels of a part of the picture, in view coordinates, in which something of this colour is.
    int count(const QColor& color, QRectF part) const
    {
        int found = 0;
        for (auto y = part.top(); y < part.bottom(); ++y)
            for (auto x = part.left(); x < part.right(); ++x)
                found += isMostly(at(static_cast<float>(x), static_cast<float>(y)), color);
        return found;
    }
    /// From where to where each label below the x axis reaches.
    std::vector<std::pair<int, int>> xLabels() const
    {
        std::vector<std::pair<int, int>> labels;
        for (int x = 0; x < picture.width(); ++x) {
            if (count(Qt::black, QRectF(x, 0, 1, 15)) == 0)
                continue;
            if (labels.empty() || x > labels.back().second + 5)
                labels.emplace_back(x, x);
            labels.back().second = x;
        }
        return labels;
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
    std::optional<MultipFormatter> xFormatter;
    std::optional<MultipFormatter> yFormatter;
    QImage picture;
    std::optional<ChartScaling> drawing;
};

/// A flat road of 20 km at 505 m, 30 km/h and a pulse of 150.
const ChartData flat({0, 10, 20},
                     {{altitude, {505, 505, 505}}, {speed, {30, 30, 30}}, {pulse, {150, 150, 150}}});

/// The same with a pulse of 210.
const ChartData fast({0, 20}, {{pulse, {210, 210}}});

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

TEST_F(Drawing, TicsStandOutsideOfThePlotAndLabelsBesideThem)
{
    draw(flat, {altitude, speed});
    const auto axis = drawing->xAxisPosition();
    const auto tics = drawing->xTics();
    const auto labels = xLabels();
    ASSERT_EQ(labels.size(), tics.size());
    for (std::size_t tic = 0; tic < tics.size(); ++tic) {
        const auto x = tics[tic].position;
        EXPECT_EQ(at(x, axis - 3), QColor(Qt::red)) << tic;
        EXPECT_EQ(at(x + 4, axis - 3), QColor(Qt::white)) << tic;
        const auto centre = static_cast<float>(labels[tic].first + labels[tic].second + 1) / 2;
        EXPECT_NEAR(centre, x, 2) << tic;
    }
    // The series scaled last is speed.
    const auto left = drawing->leftAxisPosition();
    const auto right = drawing->secondAxisPosition();
    const auto marginsLeft = QRectF(0, 0, static_cast<double>(left) - 6, 14);
    const auto marginRight =
        QRectF(static_cast<double>(right) + 6, 0, width - 7 - static_cast<double>(right), 14);
    for (const auto& tic : drawing->yTics(true)) {
        const auto y = tic.position;
        const auto redAt = [&](float x) {
            return count(Qt::red, QRectF(static_cast<double>(x), static_cast<double>(y) - 1, 1, 3));
        };
        EXPECT_EQ(redAt(left - 3), 1);
        EXPECT_EQ(redAt(left + 3), 0);
        EXPECT_EQ(redAt(right + 3), 1);
        EXPECT_EQ(redAt(right - 3), 0);
        const auto bottom = static_cast<double>(y) - 7;
        EXPECT_GT(count(Qt::black, marginsLeft.translated(0, bottom)), 5) << y;
        EXPECT_GT(count(Qt::black, marginRight.translated(0, bottom)), 3) << y;
    }
    EXPECT_EQ(count(Qt::black, QRectF(static_cast<double>(left), 30, static_cast<double>(right - left), 160)),
              0)
        << "no label in the plot";
}

TEST_F(Drawing, LabelsNeitherCollideNorLeaveThePicture)
{
    // Tics 20 units apart, whose labels are wider; the last one stands near the edge.
    const ChartData far({0, 20'000}, {{altitude, {5, 8}}});
    draw(far, {altitude});
    const auto labels = xLabels();
    ASSERT_GT(labels.size(), 3U);
    EXPECT_LT(labels.size(), drawing->xTics().size());
    EXPECT_LT(labels.back().second, width);
    for (const auto& [first, last] : labels)
        EXPECT_LT(last - first, 36) << "five digits at the most";
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
    // Below and above it fades from one colour to the other, over 0.3 of the range and a beat.
    const auto& settings = drawing->chart().settings;
    const auto isAlmost = [](const QColor& color, const QColor& wanted) {
        return std::abs(color.red() - wanted.red()) + std::abs(color.green() - wanted.green()) +
                   std::abs(color.blue() - wanted.blue()) <
               45;
    };
    EXPECT_TRUE(isAlmost(atValue(5, 118.8F), chartColor(settings.pulseBelowColor)));
    EXPECT_TRUE(isAlmost(atValue(5, 129.5F), in));
    EXPECT_EQ(atValue(5, 117), QColor(Qt::white));
    draw(fast, {pulse});
    EXPECT_TRUE(isAlmost(atValue(5, 170.5F), in));
    EXPECT_TRUE(isAlmost(atValue(5, 179.5F), chartColor(settings.pulseAboveColor)));
    EXPECT_EQ(atValue(5, 183.5F), QColor(Qt::white));
    draw(flat, {pulse});
    EXPECT_TRUE(isMostly(atValue(5, 150), Qt::gray)) << "the line lies on them";

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
    const auto right = static_cast<double>(drawing->plotRight());
    EXPECT_GT(count(Qt::magenta, QRectF(0, 0, width, height)), 20);
    EXPECT_GT(count(Qt::magenta, QRectF(0, height - 24.5, width, 4)), 3) << "above the top";
    EXPECT_EQ(count(Qt::magenta, QRectF(0, height - 19.5, width, 19)), 0);
    EXPECT_EQ(count(Qt::magenta, QRectF(right + 1.5, 0, width - right - 2, height)), 0);
    EXPECT_EQ(count(Qt::magenta, QRectF(40, 18, width - 40, 6)), 0);
}

TEST_F(Drawing, WhatIsCutOffKeepsItsSlopeAlsoInAPictureWithoutClips)
{
    defaults.setValue(DefaultsKeys::useManualRange, true);
    defaults.setValue(DefaultsKeys::minRange, 500);
    defaults.setValue(DefaultsKeys::maxRange, 502);
    const ChartData peak({0, 10, 20}, {{altitude, {0, 2500, 0}}});
    draw(peak, {altitude});
    // 501 m is a fifth of the way up.
    const auto x = static_cast<double>(drawing->calcRealXValueFrom(501.0F / 250));
    EXPECT_GE(count(Qt::blue, QRectF(x - 2, 60, 5, 60)), 60);
    EXPECT_EQ(count(Qt::blue, QRectF(x + 5, 60, 100, 60)), 0);
    const auto svg = chartPicture(chartContent(drawing->chart(), {}), QStringLiteral("a.svg")).bytes;
    const auto from = svg.indexOf("#0000ff");
    ASSERT_GE(from, 0);
    const auto points = svg.mid(svg.indexOf("points=\"", from) + 8);
    for (const auto& place : points.left(points.indexOf('"')).simplified().split(' ')) {
        EXPECT_GE(place.split(',').value(1).toDouble(), 19.9) << place.constData();
        EXPECT_LE(place.split(',').value(1).toDouble(), height - 24.9) << place.constData();
    }
}

TEST_F(Drawing, StaysWithinTheClipOfItsPainter)
{
    draw(flat, {altitude});
    QImage half(width, height, QImage::Format_RGB32);
    half.fill(Qt::black);
    QPainter painter(&half);
    painter.setClipRect(0, 0, 100, height);
    ChartDrawing(painter, drawing->chart(), {}).draw();
    painter.end();
    for (int y = 0; y < height; ++y)
        ASSERT_EQ(half.pixelColor(150, y), QColor(Qt::black));
}

TEST_F(Drawing, TheIndicatorIsALineOfTwoUnits)
{
    indicator = 10.0F;
    draw(flat, {altitude});
    const auto x = drawing->calcRealXValueFrom(10);
    EXPECT_EQ(at(x, 60), QColor(Qt::red));
    EXPECT_EQ(at(x - 0.5F, 60), QColor(Qt::red));
    EXPECT_EQ(at(x + 1.6F, 60), QColor(Qt::white));
    EXPECT_EQ(at(x - 1.6F, 60), QColor(Qt::white));
}

TEST_F(Drawing, EachSeriesHasItsColourAndAnUnknownOneTheLast)
{
    defaults.setValue(DefaultsKeys::colorAltitude, ColourComponents{1, 0, 1, 1});
    defaults.setValue(DefaultsKeys::colorSpeed, ColourComponents{0, 1, 1, 1});
    defaults.setValue(DefaultsKeys::colorPulse, ColourComponents{0, 0, 0.5, 1});
    defaults.setValue(DefaultsKeys::pulseDrawPulseRange, false);
    const auto cadence = QStringLiteral("cadence");
    const ChartData rides(
        {0, 20}, {{altitude, {505, 505}}, {speed, {30, 30}}, {pulse, {150, 150}}, {cadence, {95, 95}}});
    const auto plot = QRectF(60, 30, 280, 140);
    draw(rides, {altitude, speed, pulse, cadence});
    EXPECT_GE(count(Qt::magenta, plot), 280);
    EXPECT_GE(count(Qt::cyan, plot), 280);
    EXPECT_GE(count(Qt::darkBlue, plot), 2 * 280);
    draw(rides, {cadence});
    EXPECT_GE(count(Qt::red, plot), 280) << "that of the axes";
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
        EXPECT_LT(unlike, count(Qt::blue) / 6) << ratio;
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
        const auto file = chartPicture(chartContent(chart, {}), QString::fromLatin1(name));
        EXPECT_TRUE(file.error.isEmpty()) << name;
        EXPECT_TRUE(file.bytes.startsWith(begin)) << name;
    }
    const auto image = QImage::fromData(chartPicture(chartContent(chart, {}), QStringLiteral("b.jpg")).bytes);
    EXPECT_EQ(image.size(), QSize(width, height));
    const auto svg = chartPicture(chartContent(chart, {}), QStringLiteral("a.svg")).bytes;
    EXPECT_TRUE(svg.contains("viewBox=\"0 0 400 200\""));
    EXPECT_TRUE(svg.contains("#0000ff"));
    EXPECT_EQ(chartPicture(chartContent(chart, {}), QStringLiteral("chart")).error,
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
