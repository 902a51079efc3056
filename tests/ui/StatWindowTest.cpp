#include "chart/BarChartView.h"
#include "tests/support/Documents.h"
#include "tests/support/LogCapture.h"
#include "tests/support/Rides.h"
#include "tests/ui/Application.h"
#include "tests/ui/MenuKeys.h"
#include "ui/PeriodStepper.h"
#include "ui/SegmentedControl.h"
#include "ui/StatWindowController.h"

#include <QClipboard>
#include <QDateEdit>
#include <QMenuBar>
#include <QTabBar>
#include <QToolBar>
#include <QToolButton>

namespace ridelog {
namespace {

/// Statistics, looked at as a rider does, with mouse and keys.
class StatWindow : public Application {
protected:
    /// Opens the window by key; it was closed, or is there already.
    StatWindowController& open()
    {
        inFront(window());
        QTest::keyClick(&window(), Qt::Key_T, Qt::ControlModifier | Qt::ShiftModifier);
        inFront(*window().statWindow());
        return *window().statWindow();
    }
    /// Starts with these tours, and the statistics of this day.
    StatWindowController& openWith(const Tours& tours, const QDateTime& date)
    {
        start();
        defaults->setValue(DefaultsKeys::odoStatDate, date);
        document().addNewToursFromArray(tours);
        document().undoManager().closeGroup();
        return open();
    }
    /// An hour each: four of 2007, two of them in March, and one of 2005.
    static Tours fiveRides()
    {
        Tours tours;
        const std::tuple<QDate, int, int> rides[]{{{2007, 3, 10}, 20'000, 120},
                                                  {{2007, 3, 12}, 30'000, 130},
                                                  {{2007, 8, 1}, 40'000, 0},
                                                  {{2007, 12, 31}, 10'000, 0},
                                                  {{2005, 6, 1}, 100'000, 0}};
        for (const auto& [day, metres, pulse] : rides)
            tours.push_back(Ride{.start = berlin(day.year(), day.month(), day.day()),
                                 .metres = metres,
                                 .pulseSum = 180 * pulse}
                                .tour());
        return tours;
    }
    static void click(QWidget& button)
    {
        QTest::mouseClick(&button, Qt::LeftButton);
        QCoreApplication::processEvents();
    }
    static void press(QWidget& widget, QKeyCombination keys)
    {
        QTest::keyClick(&widget, keys.key(), keys.keyboardModifiers());
        QCoreApplication::processEvents();
    }
    static void clickTab(StatWindowController& shown, int tab)
    {
        QTest::mouseClick(&shown.tabView(), Qt::LeftButton, {}, shown.tabView().tabRect(tab).center());
        QCoreApplication::processEvents();
    }
    static void clickBar(StatWindowController& shown, int bar)
    {
        auto& chart = shown.chart();
        QTest::mouseClick(&chart, Qt::LeftButton, {}, chart.scaling().columnOf(bar).center().toPoint());
        QCoreApplication::processEvents();
    }
    static QString text(StatWindowController& shown, Period period, const char* key)
    {
        return shown.field(period, key).text();
    }
    /// Of all periods, from all tours to the week.
    static QStringList texts(StatWindowController& shown, const char* key)
    {
        QStringList texts;
        for (const auto period : allPeriods)
            texts << text(shown, period, key);
        return texts;
    }
    static QStringList titles(StatWindowController& shown)
    {
        QStringList titles;
        for (const auto period : {Period::year, Period::month, Period::week})
            titles << shown.stepper(period).title();
        return titles;
    }
    static QString identifier(StatWindowController& shown)
    {
        return shown.tabView().tabData(shown.tabView().currentIndex()).toString();
    }
    static QStringList list(const char* texts) { return QString::fromUtf8(texts).split(u'|'); }
};

TEST_F(StatWindow, ShowsAllToursAndTodayAtFirst)
{
    const LogCapture log;
    const auto before = CalendarDate::now();
    start({dump()});
    auto& shown = open();
    EXPECT_EQ(identifier(shown), QStringLiteral("1"));
    EXPECT_LE(before, shown.odoStat().date());
    EXPECT_LE(shown.odoStat().date(), CalendarDate::now());
    EXPECT_EQ(shown.dateField().date(), shown.odoStat().date().date());
    EXPECT_TRUE(log.lines().contains(QStringLiteral("[StatWindowController init]")));
    EXPECT_TRUE(log.lines().contains(QStringLiteral("[windowDidLoad]")));
    EXPECT_EQ(log.lines().count(QStringLiteral("[_calcGlobalStat]")), 1);
    EXPECT_EQ(&shown.toursArray(), &document().toursArray());
    EXPECT_NE(text(shown, Period::all, "distance"), QStringLiteral("0"));
}

TEST_F(StatWindow, HasAllValuesOfTheFourPeriods)
{
    auto& shown = openWith(fiveRides(), berlin(2007, 3, 13));
    EXPECT_EQ(titles(shown), list("2007|March 2007|Week 11, 2007"));
    EXPECT_EQ(texts(shown, "distance"), list("200|100|50|30"));
    EXPECT_EQ(texts(shown, "duration"), list("5:00:00|4:00:00|2:00:00|1:00:00"));
    EXPECT_EQ(texts(shown, "averageSpeed"), list("40|25|25|30"));
    EXPECT_EQ(texts(shown, "averagePulse"), list("50|63|125|130"));
    EXPECT_EQ(texts(shown, "heartBeats"), list("15000|15000|15000|7800"));
    EXPECT_EQ(texts(shown, "elevationGain"), list("0|0|0|0"));
    EXPECT_EQ(texts(shown, "averageClimbingPerc"), list("0.0|0.0|0.0|0.0"));
    EXPECT_EQ(text(shown, Period::all, "firstTour"), QStringLiteral("1 Jun 2005"));
    EXPECT_EQ(text(shown, Period::year, "firstTour"), QStringLiteral("10 Mar 2007"));
    EXPECT_EQ(text(shown, Period::month, "lastTour"), QStringLiteral("12 Mar 2007"));

    // A week without a tour.
    press(shown, Qt::ALT | Qt::Key_Right);
    EXPECT_EQ(texts(shown, "distance"), list("200|100|50|0"));
    EXPECT_EQ(text(shown, Period::week, "duration"), QStringLiteral("0:00:00"));
    for (const auto* key : {"averageSpeed", "maxSpeed", "averagePulse", "maxPulse", "averageClimbingPerc",
                            "averageDecendingPerc", "firstTour", "lastTour"})
        EXPECT_EQ(text(shown, Period::week, key), QStringLiteral("–")) << key;
}

TEST_F(StatWindow, StepsByTheCalendarAndKeepsTheTimeOfDay)
{
    start();
    auto& shown = open();
    const auto& year = shown.stepper(Period::year);
    const auto date = [&shown] { return CalendarDate::text(shown.odoStat().date()).toStdString(); };
    const auto beginAt = [&](const char* zone, QDate day) {
        const auto start =
            CalendarDate::fromFields(day.year(), day.month(), day.day(), 21, 15, 7, QTimeZone(zone));
        shown.setOdoStat(std::make_unique<OdoStat>(WeekRule{Qt::Monday}, start));
        QCoreApplication::processEvents();
    };
    const auto minus = [&](Period period) {
        click(shown.stepper(period).minus());
        return date();
    };
    const auto plus = [&](Period period) {
        click(shown.stepper(period).plus());
        return date();
    };

    beginAt("Europe/Berlin", {2008, 3, 31});
    EXPECT_EQ(minus(Period::month), "2008-02-29 21:15:07 +0100") << "and the clocks go back";
    EXPECT_EQ(minus(Period::year), "2007-02-28 21:15:07 +0100");
    EXPECT_EQ(minus(Period::month), "2007-01-28 21:15:07 +0100");
    EXPECT_EQ(minus(Period::month), "2006-12-28 21:15:07 +0100");
    EXPECT_EQ(year.title(), QStringLiteral("2006"));
    EXPECT_EQ(plus(Period::week), "2007-01-04 21:15:07 +0100");
    EXPECT_EQ(titles(shown), list("2007|January 2007|Week 1, 2007"));
    EXPECT_EQ(minus(Period::week), "2006-12-28 21:15:07 +0100");
    EXPECT_EQ(titles(shown), list("2006|December 2006|Week 52, 2006"));

    beginAt("America/New_York", {2007, 11, 3});
    EXPECT_EQ(plus(Period::week), "2007-11-10 21:15:07 -0500");
    EXPECT_EQ(minus(Period::week), "2007-11-03 21:15:07 -0400");
    EXPECT_EQ(minus(Period::year), "2006-11-03 21:15:07 -0500") << "the clocks changed earlier then";
    beginAt("Australia/Lord_Howe", {2007, 12, 31});
    EXPECT_EQ(plus(Period::month), "2008-01-31 21:15:07 +1100");
    EXPECT_EQ(plus(Period::month), "2008-02-29 21:15:07 +1100");
    for (int month = 3; month <= 6; ++month)
        plus(Period::month);
    EXPECT_EQ(date(), "2008-06-29 21:15:07 +1030");
    EXPECT_EQ(plus(Period::year), "2009-06-29 21:15:07 +1030");
}

TEST_F(StatWindow, GoesToADateByKey)
{
    auto& shown = openWith(fiveRides(), berlin(2007, 3, 13));
    press(shown, Qt::ALT | Qt::SHIFT | Qt::Key_PageUp);
    press(shown, Qt::ALT | Qt::Key_PageDown);
    press(shown, Qt::ALT | Qt::Key_Left);
    EXPECT_EQ(shown.odoStat().date().date(), QDate(2006, 4, 6));
    press(shown, Qt::ALT | Qt::SHIFT | Qt::Key_PageDown);
    press(shown, Qt::ALT | Qt::Key_PageUp);
    press(shown, Qt::ALT | Qt::Key_Right);
    EXPECT_EQ(shown.odoStat().date().date(), QDate(2007, 3, 13));

    press(shown, Qt::CTRL | Qt::Key_G);
    ASSERT_TRUE(shown.dateField().hasFocus());
    QTest::keyClicks(&shown.dateField(), QStringLiteral("01"));
    EXPECT_EQ(shown.odoStat().date().date(), QDate(2007, 3, 13)) << "not while it is typed";
    press(shown.dateField(), Qt::Key_Return);
    EXPECT_EQ(shown.odoStat().date().date(), QDate(2007, 3, 1));
    EXPECT_EQ(shown.odoStat().date().time(), QTime(12, 0));
    EXPECT_EQ(titles(shown), list("2007|March 2007|Week 9, 2007"));

    shown.odoStat().setDate(berlin(9999, 12, 28));
    QCoreApplication::processEvents();
    click(shown.stepper(Period::week).plus());
    EXPECT_EQ(shown.odoStat().date().date(), QDate(9999, 12, 28));
    EXPECT_EQ(shown.message(), QStringLiteral("This window goes from the year 1000 to the year 9999."));
    click(shown.todayButton());
    EXPECT_EQ(shown.odoStat().date().date(), CalendarDate::now().date());
    EXPECT_EQ(shown.dateField().date(), CalendarDate::now().date());
    EXPECT_EQ(shown.message(), QString());
    shown.stepper(Period::week).plus().setFocus();
    const std::vector<QWidget*> order{&shown.todayButton(), &shown.dateField(), &shown.tabView()};
    for (auto* next : order) {
        press(shown, Qt::Key_Tab);
        EXPECT_TRUE(next->hasFocus()) << next->metaObject()->className();
    }
    for (int tab = 3; tab >= 0; --tab) {
        press(shown, Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + tab));
        EXPECT_EQ(shown.tabView().currentIndex(), tab);
    }
}

TEST_F(StatWindow, ComesBackOnTheSameTabAndDate)
{
    start();
    ASSERT_EQ(controller->saveDocumentAs(document(), path("tours.ridelog")), std::nullopt);
    auto& shown = open();
    clickTab(shown, 1);
    click(shown.stepper(Period::year).minus());
    click(shown.stepper(Period::year).minus());
    // As the rider does: nobody has told the window itself.
    shown.windowHandle()->setGeometry(40, 50, 900, 600);
    QCoreApplication::processEvents();
    const auto date = CalendarDate::text(shown.odoStat().date());
    const auto year = shown.stepper(Period::year).title();
    shown.close();
    EXPECT_EQ(&open(), &shown) << "it is shown again, and not made anew";
    EXPECT_EQ(identifier(shown), QStringLiteral("2"));
    EXPECT_EQ(shown.stepper(Period::year).title(), year);
    EXPECT_EQ(shown.geometry(), QRect(40, 50, 900, 600));
    shown.close();
    end();
    EXPECT_TRUE(read("settings").contains("statTabViewIdentifier=2"));

    start({path("tours.ridelog")});
    EXPECT_EQ(window().statWindow(), nullptr);
    auto& again = open();
    EXPECT_EQ(identifier(again), QStringLiteral("2"));
    EXPECT_EQ(CalendarDate::text(again.odoStat().date()), date);
    EXPECT_EQ(again.stepper(Period::year).title(), year);
    EXPECT_EQ(again.geometry(), QRect(40, 50, 900, 600));
}

TEST_F(StatWindow, GarbageAmongTheSettingsCountsAsNone)
{
    for (const auto* date : {"yesterday", "0001-02-03T00:00:00+00:00", "2007-99-99"}) {
        start();
        defaults->setValue(DefaultsKeys::statTabViewIdentifier, QStringLiteral("Year"));
        defaults->setValue(DefaultsKeys::odoStatDate, QString::fromLatin1(date));
        defaults->setValue(DefaultsKeys::statWindowFrame, QByteArray("no frame"));
        auto& shown = open();
        EXPECT_EQ(identifier(shown), QStringLiteral("1"));
        EXPECT_LT(shown.odoStat().date().secsTo(CalendarDate::now()), 60) << date;
        end();
    }
}

TEST_F(StatWindow, OtherUnitsShowInAllFieldsAtOnce)
{
    auto& shown = openWith(fiveRides(), berlin(2007, 3, 13));
    const auto durations = texts(shown, "duration");
    EXPECT_EQ(shown.chart().chart().title, QStringLiteral("All – Distance (km)"));
    EXPECT_NEAR(shown.chart().chart().bars.at(0).value, 100, 1e-3);
    defaults->setValue(DefaultsKeys::useMiles, true);
    EXPECT_EQ(texts(shown, "distance"), list("124.3|62.1|31.1|18.6"));
    EXPECT_EQ(texts(shown, "averageSpeed"), list("24.9|15.5|15.5|18.6"));
    EXPECT_EQ(texts(shown, "maxSpeed"), list("62.5|25.1|18.8|18.8"));
    EXPECT_EQ(texts(shown, "duration"), durations);
    EXPECT_EQ(shown.chart().chart().title, QStringLiteral("All – Distance (mi)"));
    EXPECT_NEAR(shown.chart().chart().bars.at(0).value, 62.13712, 1e-3);
    shown.close();
    defaults->setValue(DefaultsKeys::useMiles, false);
    EXPECT_EQ(text(open(), Period::year, "distance"), QStringLiteral("100"));
}

TEST_F(StatWindow, ABarLeadsToItsYearItsMonthAndItsWeek)
{
    auto& shown = openWith(fiveRides(), berlin(2005, 6, 2));
    auto& chart = shown.chart();
    const auto barLabels = [&chart] {
        QStringList labels;
        for (const auto& bar : chart.chart().bars)
            labels << bar.label;
        return labels;
    };
    EXPECT_TRUE(chart.hasFocus());
    EXPECT_EQ(barLabels(), list("2005|2006|2007"));
    EXPECT_EQ(shown.readout(), QStringLiteral("2005: 100 km")) << "the keys begin at the chosen date";
    const auto place = chart.scaling().columnOf(2).center();
    QMouseEvent move(QEvent::MouseMove, place, chart.mapToGlobal(place), Qt::NoButton, {}, {});
    QCoreApplication::sendEvent(&chart, &move);
    EXPECT_EQ(shown.readout(), QStringLiteral("2007: 100 km"));
    clickBar(shown, 2);
    EXPECT_EQ(identifier(shown), QStringLiteral("2"));
    EXPECT_EQ(shown.odoStat().date().date(), QDate(2007, 1, 1));
    EXPECT_EQ(barLabels().mid(0, 3), list("Jan|Feb|Mar"));

    press(chart, Qt::Key_Home);
    press(chart, Qt::Key_Right);
    press(chart, Qt::Key_Right);
    EXPECT_EQ(shown.readout(), QStringLiteral("March 2007: 50 km"));
    press(chart, Qt::Key_Return);
    EXPECT_EQ(identifier(shown), QStringLiteral("3"));
    EXPECT_EQ(barLabels().size(), 31);
    clickBar(shown, 11);
    EXPECT_EQ(identifier(shown), QStringLiteral("4"));
    EXPECT_EQ(titles(shown), list("2007|March 2007|Week 11, 2007"));
    EXPECT_EQ(barLabels(), list("Mon 12|Tue 13|Wed 14|Thu 15|Fri 16|Sat 17|Sun 18"));
    clickBar(shown, 6);
    EXPECT_EQ(shown.odoStat().date().date(), QDate(2007, 3, 18));
    EXPECT_EQ(identifier(shown), QStringLiteral("4"));
    clickBar(shown, 0);

    const char* readouts[]{"30 km", "1:00:00", "0 m", "7800"};
    for (int quantity = 0; quantity < 4; ++quantity) {
        click(shown.quantities().segment(quantity));
        chart.setFocus();
        press(chart, Qt::Key_Home);
        EXPECT_EQ(shown.readout(),
                  QStringLiteral("Monday, 12 March 2007: ") + QString::fromLatin1(readouts[quantity]));
    }
    defaults->setValue(DefaultsKeys::colorPulse, ColourComponents{1, 0, 1, 1});
    EXPECT_EQ(chart.chart().color, QColor(Qt::magenta));
}

TEST_F(StatWindow, FollowsTheToursOfItsDocument)
{
    auto& shown = openWith(fiveRides(), berlin(2007, 3, 13));
    document().deleteTour(document().toursArray().at(0));
    document().undoManager().closeGroup();
    QCoreApplication::processEvents();
    EXPECT_EQ(texts(shown, "distance"), list("180|80|30|30"));
    EXPECT_EQ(shown.chart().chart().note, QString());
    document().undoManager().undo();
    QCoreApplication::processEvents();
    EXPECT_EQ(texts(shown, "distance"), list("200|100|50|30"));

    shown.close();
    document().undoManager().undo();
    QCoreApplication::processEvents();
    ASSERT_TRUE(document().toursArray().empty());
    open();
    EXPECT_EQ(texts(shown, "distance"), list("0|0|0|0"));
    EXPECT_TRUE(shown.chart().chart().bars.empty());
    EXPECT_EQ(text(shown, Period::all, "firstTour"), QStringLiteral("–"));
    for (int tab = 0; tab < 4; ++tab) {
        clickTab(shown, tab);
        EXPECT_TRUE(shown.chart().scaling().tics().empty());
        EXPECT_EQ(shown.chart().chart().note, QStringLiteral("No tours"));
    }
}

TEST_F(StatWindow, IsOneForEachDocumentAndGoesWithIt)
{
    start();
    window().importDump(dump());
    auto& shown = open();
    EXPECT_EQ(&open(), &shown);
    EXPECT_EQ(shown.windowTitle(), QStringLiteral("Statistics – Untitled"));
    ASSERT_EQ(controller->saveDocumentAs(document(), path("a[*]b.ridelog")), std::nullopt);
    EXPECT_EQ(windows->openWindows(), (std::vector<QWidget*>{&window(), &shown}));
    shown.close();
    EXPECT_EQ(windows->openWindows().size(), 1U);
    click(*window().findChild<QToolBar*>()->widgetForAction(action(QStringLiteral("Statistics"))));
    EXPECT_TRUE(shown.isVisible());
    controller->newDocument();
    QPointer<StatWindowController> gone = &shown;
    window().close();
    EXPECT_TRUE(eventually([&] { return !gone && windows->mainWindows().size() == 1; }));
}

TEST_F(StatWindow, StaysWhenTheDocumentStays)
{
    auto& shown = openWith(fiveRides(), berlin(2007, 3, 13));
    answer("Cancel");
    press(shown, Qt::CTRL | Qt::Key_Q);
    EXPECT_TRUE(eventually([&] { return !question.isEmpty(); }));
    EXPECT_TRUE(shown.isVisible());
    EXPECT_TRUE(window().isVisible());
}

TEST_F(StatWindow, ValuesAreCopiedAndTheChartIsSaved)
{
    auto& shown = openWith(fiveRides(), berlin(2007, 3, 13));
    press(shown, Qt::CTRL | Qt::SHIFT | Qt::Key_C);
    const auto lines = QGuiApplication::clipboard()->text().split(u'\n');
    ASSERT_EQ(lines.size(), 14);
    EXPECT_EQ(lines[0], QStringLiteral("\tAll\t2007\tMarch 2007\tWeek 11, 2007"));
    EXPECT_EQ(lines[1], QStringLiteral("Distance (km)\t200\t100\t50\t30"));
    EXPECT_EQ(shown.message(), QStringLiteral("The statistics are copied."));

    choose(path("bars.png"));
    press(shown, Qt::CTRL | Qt::SHIFT | Qt::Key_E);
    EXPECT_TRUE(eventually([&] { return !shown.message().isEmpty(); }));
    EXPECT_EQ(shown.message(), QStringLiteral("The chart was saved as %1.").arg(path("bars.png")));
    EXPECT_EQ(QImage(path("bars.png")).size(), shown.chart().size());
}

TEST_F(StatWindow, WritesNumbersAsTheLocaleDoesButWithoutGroups)
{
    QLocale::setDefault(QLocale(QStringLiteral("de_DE")));
    auto tours = fiveRides();
    tours.push_back(Ride{.start = berlin(2007, 3, 11), .metres = 1'234'500, .pulseSum = 180 * 180}.tour());
    auto& shown = openWith(tours, berlin(2007, 3, 13));
    EXPECT_EQ(text(shown, Period::all, "distance"), QStringLiteral("1434,5"));
    EXPECT_EQ(text(shown, Period::all, "heartBeats"), QStringLiteral("25799"));
    EXPECT_EQ(text(shown, Period::month, "firstTour"), QStringLiteral("10.03.2007"));
    EXPECT_EQ(shown.chart().scaling().tics().back().label, QStringLiteral("1400"));
    EXPECT_EQ(shown.stepper(Period::month).title(), QStringLiteral("März 2007"));
    QLocale::setDefault(QLocale::c());
}

TEST_F(StatWindow, NoValueIsCutOff)
{
    Tours tours;
    for (int i = 0; i < 20; ++i)
        tours.push_back(Ride{.start = berlin(2003, 2, 13 + i), .entries = 9'000, .metres = 200'000}.tour());
    auto& shown = openWith(tours, berlin(2007, 3, 13));
    const auto hasRoom = [&shown](const char* key) {
        const auto& field = shown.field(Period::all, key);
        const auto* viewport = field.parentWidget()->parentWidget();
        return field.width() >= field.sizeHint().width() &&
               field.mapTo(viewport, field.rect().bottomRight()).x() <= viewport->width();
    };
    const auto expectRoom = [&hasRoom](const char* when) {
        for (const auto* key : {"distance", "duration", "averageSpeed", "heartBeats", "firstTour"})
            EXPECT_TRUE(eventually([&] { return hasRoom(key); })) << when << key;
    };
    expectRoom("at first: ");
    shown.resize(shown.minimumSizeHint());
    QCoreApplication::processEvents();
    expectRoom("as small as can be: ");
}

TEST_F(StatWindow, NoTwoActionsShareALetterOrAKey)
{
    start();
    QStringList keys;
    collectKeys(open().menuBar()->actions(), keys);
    EXPECT_GE(keys.size(), 18);
}

} // namespace
} // namespace ridelog
