#include "chart/BarChartView.h"
#include "chart/BarDrawing.h"
#include "chart/ChartPaper.h"

#include <QImage>
#include <QLocale>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace ridelog {
namespace {

BarChart barsOf(const std::vector<double>& values, BarChart::Values kind = BarChart::Values::numbers)
{
    BarChart chart{.title = QStringLiteral("Distance (km)"), .values = kind, .color = Qt::blue};
    for (const auto value : values)
        chart.bars.push_back({.label = QString::number(2000 + chart.bars.size()), .value = value});
    return chart;
}

BarScaling scaled(const BarChart& chart, QSizeF size = {600, 300})
{
    return {chart, size, chartLabelMeasure()};
}

QStringList labels(const BarScaling& scaling)
{
    QStringList labels;
    for (const auto& tic : scaling.tics())
        labels << tic.label;
    return labels;
}

QImage pictureOf(const BarScaling& scaling, std::optional<int> marked = {})
{
    QImage image(scaling.size().toSize(), QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    drawBars(painter, scaling, marked);
    return image;
}

TEST(BarScaling, TheAxisEndsAtTheFirstRoundTicThatNoBarIsHigherThan)
{
    using Values = BarChart::Values;
    const auto last = [](double highest, Values kind, double height = 300) {
        const auto scaling = scaled(barsOf({0, highest}, kind), {600, height});
        EXPECT_LE(scaling.barOf(1).height(), scaling.plot().height() + 1e-9);
        EXPECT_GT(scaling.barOf(1).height(), scaling.plot().height() / 2);
        EXPECT_EQ(scaling.tics().front().y, scaling.plot().bottom());
        EXPECT_EQ(scaling.tics().back().y, scaling.plot().top());
        for (std::size_t tic = 1; tic < scaling.tics().size(); ++tic)
            EXPECT_GE(scaling.tics()[tic - 1].y - scaling.tics()[tic].y, 19);
        return labels(scaling).constLast().toStdString();
    };
    EXPECT_EQ(last(100, Values::numbers), "100");
    EXPECT_EQ(last(101, Values::numbers), "120");
    EXPECT_EQ(last(static_cast<double>(0.3F), Values::numbers), "0.3");
    EXPECT_EQ(last(7.2, Values::wholeNumbers), "8");
    EXPECT_EQ(last(4'321'000, Values::wholeNumbers), "5000000");
    EXPECT_EQ(last(45 * 60, Values::seconds), "0:50:00");
    EXPECT_EQ(last(130 * 3600, Values::seconds), "150:00:00");
    EXPECT_EQ(last(1e12, Values::numbers), "1e+12");
    EXPECT_EQ(last(101, Values::numbers, 150), "200");
    EXPECT_EQ(labels(scaled(barsOf({2}, Values::wholeNumbers))).join(u' '), QStringLiteral("0 1 2"))
        << "no two tics with the same label";
}

TEST(BarScaling, WithoutAValueThereAreNoTicsAndNoHeights)
{
    constexpr auto nan = std::numeric_limits<double>::quiet_NaN();
    for (const auto& values : {std::vector<double>(), {0, 0, 0}, {nan, -5}, std::vector<double>(12)}) {
        const auto scaling = scaled(barsOf(values));
        EXPECT_TRUE(scaling.tics().empty());
        for (int bar = 0; bar < scaling.count(); ++bar)
            EXPECT_EQ(scaling.barOf(bar).height(), 0);
    }
    EXPECT_EQ(scaled(barsOf({})).barAt({300, 150}), std::nullopt);
}

TEST(BarScaling, StaysFiniteInEverySizeAndWithEveryValue)
{
    constexpr auto infinite = std::numeric_limits<double>::infinity();
    const std::vector<std::vector<double>> all{
        {1e300, infinite, 1}, {5e-324, 0.001}, std::vector<double>(100, 250.5), std::vector<double>(9999, 1)};
    for (const auto& values : all) {
        for (const auto size : {QSizeF(0, 0), {1, 1}, {40, 20}, {300, 150}, {3840, 2160}}) {
            for (const auto kind : {BarChart::Values::numbers, BarChart::Values::seconds}) {
                const auto scaling = scaled(barsOf(values, kind), size);
                EXPECT_LE(scaling.tics().size(), 12U);
                EXPECT_GE(scaling.labelStep(), 1);
                for (int bar = 0; bar < scaling.count(); ++bar) {
                    const auto place = scaling.barOf(bar);
                    ASSERT_TRUE(std::isfinite(place.left()) && std::isfinite(place.right()) &&
                                std::isfinite(place.top()) && std::isfinite(place.bottom()));
                    ASSERT_GE(place.top(), scaling.plot().top() - 1e-6);
                }
                if (!size.isEmpty())
                    pictureOf(scaling, 0);
            }
        }
    }
}

TEST(BarScaling, EachPlaceBelongsToTheBarAboveIt)
{
    const auto scaling = scaled(barsOf(std::vector<double>(12, 3)));
    for (int bar = 0; bar < 12; ++bar) {
        EXPECT_EQ(scaling.barAt(scaling.columnOf(bar).center()), bar);
        EXPECT_EQ(scaling.barAt({scaling.columnOf(bar).left() + 1, 295}), bar) << "its label";
    }
    EXPECT_EQ(scaling.barAt({scaling.plot().left() - 5, 100}), std::nullopt);
    EXPECT_EQ(scaling.barAt({300, scaling.plot().top() - 5}), std::nullopt);
    EXPECT_EQ(scaled(barsOf(std::vector<double>(12, 3))).labelStep(), 1);
    EXPECT_EQ(scaled(barsOf(std::vector<double>(100, 3))).labelStep(), 10);
}

TEST(BarDrawing, BarsStandOnWhitePaperAsHighAsTheyAre)
{
    const auto scaling = scaled(barsOf({10, 0, 5}));
    const auto picture = pictureOf(scaling);
    const auto at = [&](int bar, double part) {
        const auto column = scaling.columnOf(bar);
        return picture.pixelColor(qRound(column.center().x()),
                                  qRound(column.bottom() - part * column.height() - 0.5));
    };
    const auto isBlue = [](const QColor& color) { return color.blue() > 200 && color.red() < 200; };
    EXPECT_TRUE(isBlue(at(0, 0.9)));
    EXPECT_FALSE(isBlue(at(1, 0.1)));
    EXPECT_TRUE(isBlue(at(2, 0.4)));
    EXPECT_FALSE(isBlue(at(2, 0.55)));
    EXPECT_EQ(picture.pixelColor(0, 0), QColor(Qt::white));
    EXPECT_EQ(picture.pixelColor(599, 299), QColor(Qt::white));
    EXPECT_EQ(at(1, 0), chartAxisColor);
    EXPECT_NE(pictureOf(scaling, 1), picture) << "the mark of a bar without height is seen";
    EXPECT_EQ(pictureOf(scaling, 0)
                  .pixelColor(qRound(scaling.columnOf(0).center().x()), qRound(scaling.plot().center().y())),
              QColor(Qt::blue));
    // A single metre among a thousand kilometres is not nothing.
    const auto low = scaled(barsOf({1000, 0.001}));
    EXPECT_NE(pictureOf(low), pictureOf(scaled(barsOf({1000, 0}))));
}

class BarView : public testing::Test {
protected:
    BarView()
    {
        view.resize(600, 300);
        view.setChart(barsOf({1, 2, 3, 4}), 2);
        view.show();
        view.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
        view.setFocus();
    }
    QPoint placeOf(int bar) { return view.scaling().columnOf(bar).center().toPoint(); }

    BarChartView view;
    QSignalSpy chosen{&view, &BarChartView::chosen};
};

TEST_F(BarView, KeysGoFromBarToBarAndChoose)
{
    const auto press = [this](Qt::Key key) {
        QTest::keyClick(&view, key);
        return view.markedBar();
    };
    EXPECT_EQ(view.markedBar(), 2);
    EXPECT_EQ(press(Qt::Key_Right), 3);
    EXPECT_EQ(press(Qt::Key_Right), 3);
    EXPECT_EQ(press(Qt::Key_Home), 0);
    EXPECT_EQ(press(Qt::Key_Left), 0);
    EXPECT_EQ(press(Qt::Key_End), 3);
    EXPECT_EQ(press(Qt::Key_Left), 2);
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space})
        press(key);
    ASSERT_EQ(chosen.size(), 3);
    EXPECT_EQ(chosen[0], QVariantList{2});
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, {}, true);
    QCoreApplication::sendEvent(&view, &held);
    EXPECT_EQ(chosen.size(), 3) << "a key that is held does not run on to what the choice has led to";
    QTest::keyClick(&view, Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(view.markedBar(), 2) << "that is somebody else's";

    view.setChart(barsOf({1, 2}), {});
    EXPECT_EQ(view.markedBar(), std::nullopt);
    EXPECT_EQ(press(Qt::Key_Return), std::nullopt);
    EXPECT_EQ(press(Qt::Key_Left), 1);
    view.setChart(barsOf({}), {});
    for (const auto key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_End, Qt::Key_Return})
        EXPECT_EQ(press(key), std::nullopt);
    EXPECT_EQ(chosen.size(), 3);
}

TEST_F(BarView, TheMousePointsAndChooses)
{
    QTest::mouseMove(&view, placeOf(1));
    EXPECT_EQ(view.markedBar(), 1);
    QTest::mouseClick(&view, Qt::LeftButton, {}, placeOf(0));
    QTest::mouseClick(&view, Qt::RightButton, {}, placeOf(1));
    QTest::mouseClick(&view, Qt::LeftButton, {}, QPoint(2, 2));
    QTest::mousePress(&view, Qt::LeftButton, {}, placeOf(1));
    QTest::mouseRelease(&view, Qt::LeftButton, {}, placeOf(2));
    ASSERT_EQ(chosen.size(), 1) << "who moves away has changed his mind";
    QTest::mouseClick(&view, Qt::LeftButton, {}, placeOf(0));
    QTest::mouseDClick(&view, Qt::LeftButton, {}, placeOf(0));
    QTest::mouseRelease(&view, Qt::LeftButton, {}, placeOf(0));
    ASSERT_EQ(chosen.size(), 2) << "the second click is not meant for what the first one led to";
    EXPECT_EQ(chosen[0], QVariantList{0});
    QTest::keyClick(&view, Qt::Key_Right);
    EXPECT_EQ(view.markedBar(), 3) << "the keys count, wherever the mouse lies";
    QTest::mouseMove(&view, placeOf(1));
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&view, &leave);
    EXPECT_EQ(view.markedBar(), 3);
    view.clearFocus();
    EXPECT_EQ(view.markedBar(), std::nullopt);
}

TEST_F(BarView, ItsPaperStaysWhiteWhileItGetsTheKeys)
{
    view.setChart(barsOf({1, 0, 1}), {});
    const auto shot = view.grab().toImage();
    EXPECT_EQ(shot.pixelColor(placeOf(1)), QColor(Qt::white));
    EXPECT_NE(shot.pixelColor(0, 150), QColor(Qt::white)) << "the line around it";
    view.clearFocus();
    EXPECT_EQ(view.grab().toImage().pixelColor(0, 150), QColor(Qt::white));
}

TEST_F(BarView, ItsPictureHasNoMark)
{
    const auto content = view.picture({640, 480});
    EXPECT_EQ(content.description, QStringLiteral("Distance (km)"));
    const auto png = chartPicture(content, QStringLiteral("a.png"));
    EXPECT_EQ(QImage::fromData(png.bytes).convertToFormat(QImage::Format_RGB32),
              pictureOf(scaled(view.chart(), {640, 480})));
    EXPECT_TRUE(chartPicture(content, QStringLiteral("a.svg")).bytes.contains("viewBox=\"0 0 640 480\""));
    EXPECT_TRUE(chartPicture(content, QStringLiteral("a.pdf")).bytes.startsWith("%PDF"));
    EXPECT_FALSE(chartPicture(view.picture({}), QStringLiteral("a.png")).error.isEmpty());
}

} // namespace
} // namespace ridelog
