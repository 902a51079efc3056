#include "chart/ChartArrayView.h"

#include "chart/RLCalendarView.h"
#include "format/UnitFormatters.h"
#include "library/DefaultsKeys.h"
#include "model/SeriesNames.h"
#include "platform/Defaults.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/Tours.h"

#include <QPainter>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace ridelog {
namespace {

using namespace SeriesNames;

class Clicks : public ChartMouseDelegate {
public:
    void clickAtXValue(double x) override { values.push_back(x); }
    std::vector<double> values;
};

class View : public testing::Test, protected TemporaryFolder {
protected:
    View() : defaults(path("settings"))
    {
        DefaultsKeys::registerApplicationDefaults(defaults);
        view = std::make_unique<ChartArrayView>(defaults);
        view->resize(400, 200);
        view->setDataProvider(tourOver(500, {{10, 4000}, {-20, 6000}, {10, 2000}}));
        view->setShowNames({altitude});
        view->setMpFormatterForXAxis(UnitFormatters::chartXAxis(defaults));
        view->setMpFormatterForYAxis(UnitFormatters::chartYAxis(defaults, altitude));
    }
    QImage picture() { return view->grab().toImage(); }
    int blue()
    {
        const auto image = picture();
        int found = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                found += image.pixelColor(x, y).blue() > 200 && image.pixelColor(x, y).red() < 100;
        return found;
    }

    Defaults defaults;
    std::unique_ptr<ChartArrayView> view;
};

TEST_F(View, AChoiceOfTheRiderShowsInTheNextPicture)
{
    EXPECT_GT(blue(), 100);
    defaults.setValue(DefaultsKeys::colorAltitude, ColourComponents{0, 1, 0, 1});
    EXPECT_EQ(view->settings().altitudeColor, (ColourComponents{0, 1, 0, 1}));
    EXPECT_EQ(blue(), 0);
    const auto before = picture();
    defaults.setValue(DefaultsKeys::useManualRange, true);
    EXPECT_NE(picture(), before);
    EXPECT_EQ(ChartArrayView(defaults).settings(), view->settings()) << "one made afterwards starts with it";
}

TEST_F(View, RepaintsWhenAChartPreferenceChangesAndOnlyThen)
{
    view->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(view.get()));
    struct Paints : QObject {
        bool eventFilter(QObject*, QEvent* event) override
        {
            count += event->type() == QEvent::Paint;
            return false;
        }
        int count = 0;
    } paints;
    QCoreApplication::processEvents();
    view->installEventFilter(&paints);
    defaults.setValue(DefaultsKeys::sortDesc, QStringLiteral("title:asc"));
    view->setShowNames({speed});
    QCoreApplication::processEvents();
    EXPECT_EQ(paints.count, 0);
    defaults.setValue(DefaultsKeys::maxRange, 900);
    QCoreApplication::processEvents();
    EXPECT_EQ(paints.count, 1);
}

TEST_F(View, AClickIsTheValueUnderIt)
{
    Clicks clicks;
    picture();
    QTest::mouseClick(view.get(), Qt::LeftButton, {}, QPoint(200, 100));
    view->setMouseDelegate(&clicks);
    QTest::mouseClick(view.get(), Qt::LeftButton, {}, QPoint(200, 100));
    QTest::mouseClick(view.get(), Qt::RightButton, {}, QPoint(200, 100));
    QTest::mouseClick(view.get(), Qt::LeftButton, {}, QPoint(2, 100));
    ASSERT_EQ(clicks.values.size(), 2U);
    EXPECT_EQ(clicks.values[0], view->calcXValueFromPoint(200));
    EXPECT_NEAR(clicks.values[0], 6, 1);
    EXPECT_LT(clicks.values[1], 0) << "left of the axis as well";
    EXPECT_FALSE(view->indicator()) << "the delegate marks it, if it likes";
    view->showXIndicatorUsingValue(3);
    EXPECT_EQ(view->indicator(), 3.0F);
    view->hideXIndicator();
    EXPECT_FALSE(view->indicator());
}

TEST_F(View, OnlyWhereTheMarkIsAndWasIsPaintedAgain)
{
    view->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(view.get()));
    const auto onScreen = [this] {
        QCoreApplication::processEvents();
        return view->screen()->grabWindow(view->winId()).toImage().convertToFormat(QImage::Format_RGB32);
    };
    const auto unmarked = onScreen();
    for (const auto x : {0.0F, 3.0F, 3.1F, 9.7F, -40.0F, 5.0F, 1e30F, 2.0F}) {
        view->showXIndicatorUsingValue(x);
        EXPECT_EQ(onScreen(), picture().convertToFormat(QImage::Format_RGB32)) << x;
    }
    EXPECT_NE(onScreen(), unmarked);
    view->hideXIndicator();
    EXPECT_EQ(onScreen(), unmarked);
}

TEST_F(View, WithoutDataItIsAWhitePaperWithAxes)
{
    ChartArrayView empty(defaults);
    empty.resize(300, 150);
    empty.setShowNames({altitude});
    const auto image = empty.grab().toImage();
    EXPECT_EQ(image.pixelColor(150, 75), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(150, 150 - 22), QColor(Qt::red));
    EXPECT_EQ(empty.calcXValueFromPoint(150), 0);
}

TEST(RLCalendarView, HasThreeBands)
{
    QImage image(100, 200, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    RLCalendarView::drawRect(painter, QRectF(0, 0, 100, 200));
    painter.end();
    EXPECT_EQ(image.pixelColor(50, 15), QColor(Qt::white));
    for (const int y : {0, 29, 30, 49, 50})
        EXPECT_EQ(image.pixelColor(50, y), QColor(Qt::blue)) << y;
    EXPECT_EQ(image.pixelColor(50, 120), QColor(Qt::white));
    for (const int x : {0, 99})
        EXPECT_EQ(image.pixelColor(x, 120), QColor(Qt::blue)) << x;
    EXPECT_EQ(image.pixelColor(50, 199), QColor(Qt::blue));
}

} // namespace
} // namespace ridelog
