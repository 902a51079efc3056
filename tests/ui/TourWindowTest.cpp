#include "tests/ui/TourWindow.h"

#include "tests/ui/MenuKeys.h"
#include "ui/DescriptionEdit.h"

#include <QClipboard>
#include <QMenuBar>
#include <QMimeData>
#include <QScrollArea>

namespace ridelog {
namespace {

/// What the y axis is labelled with for this number.
QString yLabel(const ChartArrayView& chart, double number)
{
    return chart.chart(chart.size()).formatterForYAxis->stringForObjectValue(number);
}

void sendMouse(QWidget& widget, QEvent::Type type, QPointF place)
{
    const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, place, widget.mapToGlobal(place), button, button, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

TEST_F(TourWindow, ShowsAltitudeOverDistanceAtFirstAndNeverNothing)
{
    auto& shown = open(tourThrough({500, 600, 550}));
    auto& series = shown.ySegmentControl();
    EXPECT_EQ(shown.xSegmentControl().selectedTags(), std::vector<int>{0});
    EXPECT_EQ(series.selectedTags(), std::vector<int>{0});
    EXPECT_EQ(shown.chart().showNames(), QStringList{QStringLiteral("altitude")});
    EXPECT_TRUE(shown.dataTableDrawer().isHidden());
    EXPECT_TRUE(shown.summaryDrawer().isHidden());
    clickSegment(series, 0);
    EXPECT_EQ(series.selectedTags(), std::vector<int>{0}) << "the last one cannot be switched off";
    EXPECT_EQ(yLabel(shown.chart(), 12.34), QStringLiteral("12"));

    clickSegment(series, 1);
    EXPECT_TRUE(series.segment(0).isEnabled());
    EXPECT_EQ(yLabel(shown.chart(), 12.34), QStringLiteral("12")) << "that of the first one";
    clickSegment(series, 0);
    EXPECT_EQ(shown.chart().showNames(), QStringList{QStringLiteral("speed")});
    EXPECT_EQ(yLabel(shown.chart(), 12.34), QStringLiteral("12.3"));
    EXPECT_FALSE(series.segment(1).isEnabled());
    QTest::keyClick(&shown, Qt::Key_5, Qt::ControlModifier);
    QTest::keyClick(&shown, Qt::Key_3, Qt::ControlModifier);
    EXPECT_EQ(series.selectedTags(), (std::vector<int>{0, 1, 2}));
    QTest::keyClick(&shown, Qt::Key_2, Qt::ControlModifier);
    EXPECT_TRUE(shown.chart().useTimeFormatForX());
}

TEST_F(TourWindow, RemembersAxesAndPlaceOfEachTour)
{
    start({dump()});
    ASSERT_EQ(controller->saveDocumentAs(document(), path("tours.ridelog")), std::nullopt);
    auto& first = openSelected();
    clickSegment(first.xSegmentControl(), 1);
    clickSegment(first.ySegmentControl(), 2);
    clickSegment(first.ySegmentControl(), 0);
    first.setGeometry(40, 50, 900, 600);
    window().tourController().selectRow(1);
    openSelected();
    first.close();
    end();

    start({path("tours.ridelog")});
    window().tourController().selectRow(0);
    auto& again = openSelected();
    EXPECT_EQ(again.xSegmentControl().selectedTags(), std::vector<int>{1});
    EXPECT_EQ(again.xAxisTag(), 1);
    EXPECT_TRUE(again.chart().useTimeFormatForX());
    EXPECT_EQ(again.ySegmentControl().selectedTags(), std::vector<int>{2});
    EXPECT_FALSE(again.ySegmentControl().segment(2).isEnabled());
    EXPECT_EQ(again.chart().showNames(), QStringList{QStringLiteral("pulse")});
    EXPECT_EQ(again.geometry(), QRect(40, 50, 900, 600));
    window().tourController().selectRow(1);
    EXPECT_EQ(openSelected().xAxisTag(), 0) << "the other tour has its own";
}

TEST_F(TourWindow, UnreadableMemoryCountsAsNone)
{
    const auto tour = tourThrough({500, 600, 550});
    start();
    defaults->setValue(DefaultsKeys::selectedXAxisValue(tour->description()), QStringLiteral("pulse"));
    defaults->setValue(DefaultsKeys::selectedYAxisValues(tour->description()), QList<int>{7, -1});
    defaults->setValue(tour->description(), QByteArray("no frame"));
    auto& shown = open(tour);
    EXPECT_EQ(shown.xAxisTag(), 0);
    EXPECT_EQ(shown.ySegmentControl().selectedTags(), std::vector<int>{0});
}

TEST_F(TourWindow, WritesInTheUnitsOfTheRider)
{
    auto& shown = open(tourThrough({500, 600, 550}));
    clickSegment(shown.ySegmentControl(), 1);
    clickSegment(shown.ySegmentControl(), 0);
    EXPECT_EQ(summary(shown, "elevationGain"), QStringLiteral("100"));
    EXPECT_EQ(summary(shown, "distance"), QStringLiteral("0.4km"));
    EXPECT_EQ(summary(shown, "avgSpeed"), QStringLiteral("24km/h")) << "the start entry counts";
    defaults->setValue(DefaultsKeys::useMiles, true);
    EXPECT_EQ(summary(shown, "elevationGain"), QStringLiteral("328")) << "also beside a chart of speeds";
    EXPECT_EQ(summary(shown, "distance"), QStringLiteral("0.25mi"));
    EXPECT_EQ(summary(shown, "avgSpeed"), QStringLiteral("14.9mph"));
    EXPECT_EQ(yLabel(shown.chart(), 100), QStringLiteral("62.1"));
    const auto& samples = *shown.dataTable().model();
    EXPECT_EQ(samples.index(1, 0).data(), QStringLiteral("0:00:20"));
    EXPECT_EQ(samples.index(1, 1).data(), QStringLiteral("0.12mi"));
    EXPECT_EQ(samples.index(1, 2).data(), QStringLiteral("1969"));
    EXPECT_EQ(samples.headerData(2, Qt::Horizontal), QStringLiteral("Altitude (ft)"));
    EXPECT_EQ(shown.maxRangeTextField().text(), QStringLiteral("2624.7"));
}

TEST_F(TourWindow, AClickInTheChartSelectsItsSampleWhileTheSamplesAreShown)
{
    // The rider stands still for two samples.
    auto& shown = open(tourOver(500, {{10, 200}, {0, 0}, {0, 0}, {5, 200}}));
    auto& chart = shown.chart();
    clickChart(chart, 0.4F);
    EXPECT_TRUE(selectedRows(shown).isEmpty());
    EXPECT_FALSE(chart.showsXIndicator());

    click(shown.dataButton());
    ASSERT_FALSE(shown.dataTableDrawer().isHidden());
    QCoreApplication::processEvents();
    clickChart(chart, 0.4F);
    ASSERT_EQ(selectedRows(shown).size(), 1);
    EXPECT_EQ(selectedRows(shown).at(0).row(), 4);
    EXPECT_TRUE(chart.showsXIndicator());
    EXPECT_EQ(chart.indicatorValue(), 0.4F);
    clickChart(chart, 0.21F);
    EXPECT_EQ(selectedRows(shown).at(0).row(), 1) << "the first of three at the same distance";

    clickSegment(shown.xSegmentControl(), 1);
    EXPECT_EQ(chart.indicatorValue(), 20) << "the mark stays with its sample";
    QCoreApplication::processEvents();
    clickChart(chart, 62);
    EXPECT_EQ(selectedRows(shown).at(0).row(), 3);
    EXPECT_EQ(chart.indicatorValue(), 60);
    shown.dataTable().selectRow(2);
    EXPECT_EQ(chart.indicatorValue(), 40);

    click(shown.dataButton());
    EXPECT_FALSE(chart.showsXIndicator());
    EXPECT_FALSE(shown.dataButton().isChecked());
    shown.dataTable().selectRow(1);
    EXPECT_FALSE(chart.showsXIndicator());
    click(shown.dataButton());
    EXPECT_EQ(chart.indicatorValue(), 20);
    shown.dataTableDrawer().close(); // by its own button
    EXPECT_FALSE(shown.dataButton().isChecked());
    EXPECT_FALSE(chart.showsXIndicator());
}

TEST_F(TourWindow, ExactlyBetweenTwoSamplesTheEarlierIsMeant)
{
    auto& shown = open(tourThrough({500, 510, 520, 530}));
    clickSegment(shown.xSegmentControl(), 1);
    click(shown.dataButton());
    QCoreApplication::processEvents();
    auto& chart = shown.chart();
    // Not in every width there is a number for the place that is exactly in the middle.
    double place = 0;
    for (int width = 700; chart.calcXValueFromPoint(place) != 30 && width < 800; ++width) {
        shown.resize(width, 600);
        QCoreApplication::processEvents();
        double left = 0;
        double right = width;
        for (int halving = 0; halving < 100 && chart.calcXValueFromPoint(place) != 30; ++halving) {
            place = (left + right) / 2;
            (chart.calcXValueFromPoint(place) < 30 ? left : right) = place;
        }
    }
    ASSERT_EQ(chart.calcXValueFromPoint(place), 30);
    sendMouse(chart, QEvent::MouseButtonPress, {place, 50});
    EXPECT_EQ(selectedRows(shown).at(0).row(), 1);
}

TEST_F(TourWindow, KeysStepThroughTheSamples)
{
    start();
    auto& shown = open(rides(3, 1).front());
    auto& chart = shown.chart();
    const auto last = shown.dataTable().model()->rowCount() - 1;
    const auto rowAfter = [&](QWidget& widget, Qt::Key key) {
        QTest::keyClick(&widget, key);
        return selectedRows(shown).at(0).row();
    };
    ASSERT_TRUE(chart.hasFocus());
    EXPECT_EQ(rowAfter(chart, Qt::Key_Right), 0);
    EXPECT_EQ(rowAfter(chart, Qt::Key_Right), 1);
    EXPECT_TRUE(shown.readout().startsWith(QStringLiteral("Time: 0:00:20   Distance: ")));
    EXPECT_FALSE(chart.showsXIndicator()) << "while the samples are not shown";
    EXPECT_EQ(rowAfter(chart, Qt::Key_PageDown), 16);
    EXPECT_EQ(rowAfter(chart, Qt::Key_PageUp), 1);
    EXPECT_EQ(rowAfter(chart, Qt::Key_PageUp), 0);
    EXPECT_EQ(rowAfter(chart, Qt::Key_End), last);
    EXPECT_EQ(rowAfter(chart, Qt::Key_Right), last);
    EXPECT_EQ(rowAfter(chart, Qt::Key_Left), last - 1);
    click(shown.dataButton());
    EXPECT_EQ(rowAfter(shown.dataTable(), Qt::Key_Home), 0);
    EXPECT_EQ(rowAfter(shown.dataTable(), Qt::Key_Down), 1);
    EXPECT_EQ(chart.indicatorValue(), shown.odoTour()->data()[1].distance);
    EXPECT_EQ(rowAfter(shown.dataTable(), Qt::Key_End), last);
}

TEST_F(TourWindow, TheMouseReadsTheValuesBelowIt)
{
    auto& shown = open(tourThrough({500, 510, 520}));
    click(shown.dataButton());
    QCoreApplication::processEvents();
    shown.dataTable().selectRow(0);
    sendMouse(shown.chart(), QEvent::MouseMove, placeOf(shown.chart(), 0.2F));
    EXPECT_EQ(shown.readout(), QStringLiteral("Time: 0:00:20   Distance: 0.2km   Altitude (m): 510   "
                                              "Speed: 36km/h   Pulse: 90   Grade (%): 5.0   Power (W): 775"));
    EXPECT_EQ(shown.chart().indicatorValue(), 0) << "the mark stays";
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&shown.chart(), &leave);
    EXPECT_TRUE(shown.readout().isEmpty());
}

TEST_F(TourWindow, ToursWithNextToNothingCanBeShown)
{
    start();
    const auto nothing = OdoTour::initWithOdoDataTourDict(std::nullopt, berlin(2007, 12, 31));
    const auto withoutBelt = OdoTour::initWithOdoDataTourDict(startValues(500, 0), berlin(2007, 12, 31));
    for (const auto& tour : {nothing, withoutBelt, tourThrough({500, 510})}) {
        auto& shown = open(tour);
        click(shown.dataButton());
        click(shown.summaryButton());
        for (int segment = 1; segment < 3; ++segment)
            clickSegment(shown.ySegmentControl(), segment);
        for (int axis = 1; axis >= 0; --axis) {
            clickSegment(shown.xSegmentControl(), axis);
            QCoreApplication::processEvents();
            clickChart(shown.chart(), 0);
            sendMouse(shown.chart(), QEvent::MouseMove, {3, 3});
            EXPECT_EQ(selectedRows(shown).size(), 1);
            QTest::keyClick(&shown.chart(), Qt::Key_PageDown);
        }
        EXPECT_EQ(summary(shown, "maxPulse").isEmpty(), tour->maxPulse() == 0);
        EXPECT_FALSE(summary(shown, "distance").isEmpty());
        EXPECT_FALSE(shown.windowTitle().isEmpty());
    }
}

TEST_F(TourWindow, TheManualRangeIsThatOfAllCharts)
{
    auto& shown = open(tourThrough({500, 510, 520}));
    auto& box = *shown.findChild<QCheckBox*>();
    EXPECT_FALSE(shown.minRangeTextField().isEnabled());
    click(box);
    EXPECT_TRUE(defaults->boolForKey(DefaultsKeys::useManualRange));
    const auto type = [](QLineEdit& field, const char* text) {
        field.selectAll();
        QTest::keyClicks(&field, QString::fromLatin1(text));
        QTest::keyClick(&field, Qt::Key_Return);
    };
    type(shown.maxRangeTextField(), "1000");
    EXPECT_EQ(defaults->floatForKey(DefaultsKeys::maxRange), 1000);
    type(shown.maxRangeTextField(), "high");
    EXPECT_EQ(defaults->floatForKey(DefaultsKeys::maxRange), 1000);
    EXPECT_EQ(shown.message(), QStringLiteral("“high” is no altitude. Write a number, like 850."));
    EXPECT_EQ(shown.maxRangeTextField().text(), QStringLiteral("1000"));
    type(shown.maxRangeTextField(), "10001");
    EXPECT_EQ(shown.message(),
              QStringLiteral("“10001” is out of range. It has to be between -900 and 10000 m."));
    type(shown.minRangeTextField(), "1200");
    EXPECT_EQ(shown.maxRangeTextField().text(), QStringLiteral("2200")) << "the other limit goes along";
    type(shown.maxRangeTextField(), "1000");
    EXPECT_EQ(shown.minRangeTextField().text(), QStringLiteral("0"));
    shown.minRangeTextField().selectAll();
    QTest::keyClicks(&shown.minRangeTextField(), QStringLiteral("200"));
    shown.finishEditing();
    EXPECT_EQ(defaults->floatForKey(DefaultsKeys::minRange), 200);

    defaults->setValue(DefaultsKeys::useMiles, true);
    EXPECT_EQ(shown.maxRangeTextField().text(), QStringLiteral("3280.8"));
    QTest::keyClick(&shown.maxRangeTextField(), Qt::Key_Return);
    EXPECT_EQ(defaults->floatForKey(DefaultsKeys::maxRange), 1000) << "nobody has typed anything";
    type(shown.maxRangeTextField(), "328.08399");
    EXPECT_NEAR(defaults->floatForKey(DefaultsKeys::maxRange), 100, 0.001);
}

TEST_F(TourWindow, RowsAreCopiedAsText)
{
    auto& shown = open(tourThrough({500, 510, 520}));
    click(shown.dataButton());
    trigger(shown, "Copy Samples");
    EXPECT_EQ(shown.message(), QStringLiteral("No samples are selected."));
    shown.dataTable().setFocus();
    shown.dataTable().selectAll();
    shown.dataTable().selectionModel()->select(shown.dataTable().model()->index(0, 0),
                                               QItemSelectionModel::Deselect | QItemSelectionModel::Rows);
    QTest::keyClick(&shown.dataTable(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(),
              QStringLiteral("Time\tDistance\tAltitude (m)\tSpeed\tPulse\tPower (W)\tGrade (%)\t"
                             "Temperature (°C)\tCadence\n"
                             "0:00:20\t0.2km\t510\t36km/h\t90\t775\t5.0\t0\t0\n"
                             "0:00:40\t0.4km\t520\t36km/h\t90\t775\t5.0\t0\t0\n"));
    EXPECT_EQ(shown.message(), QStringLiteral("2 samples copied."));
    trigger(shown, "Copy Summary");
    EXPECT_TRUE(QGuiApplication::clipboard()->text().startsWith(
        QStringLiteral("Tour\nDistance\t0.4km\nDuration\t0:01:00\n\nSpeed\n")));
}

TEST_F(TourWindow, LivesAsLongAsItsTourIsInTheDocument)
{
    start();
    window().importDump(dump());
    auto& first = openSelected();
    auto& second = openSelected();
    EXPECT_NE(&first, &second) << "a tour may have several windows";
    EXPECT_EQ(first.odoTour(), second.odoTour());
    auto* menu = action(QStringLiteral("Window"))->menu();
    Q_EMIT menu->aboutToShow();
    ASSERT_EQ(menu->actions().size(), 5) << "Statistics, a line, and the windows";
    EXPECT_EQ(menu->actions().at(3)->text(), QStringLiteral("&2  ") + first.windowTitle());
    menu->actions().at(2)->trigger();
    EXPECT_TRUE(eventually([&] { return window().isActiveWindow(); }));

    window().tourController().deleteSelectedTours();
    QCoreApplication::processEvents();
    EXPECT_EQ(window().tourWindows().size(), 2U) << "a removed tour stays in the document";
    Application::trigger("Undo tour removed");
    Application::trigger("Undo adding 5 tours");
    EXPECT_TRUE(eventually([&] { return window().tourWindows().empty(); }));
    Application::trigger("Redo adding 5 tours");
    EXPECT_EQ(rows(), 5);

    window().tourController().selectRow(0);
    auto* row = window().tableView().viewport();
    QTest::mouseClick(row, Qt::LeftButton, {}, QPoint(20, 10));
    QTest::mouseDClick(row, Qt::LeftButton, {}, QPoint(20, 10));
    ASSERT_EQ(window().tourWindows().size(), 1U);
    answer("Don't Save");
    QPointer<TourWindowController> last = window().tourWindows().at(0);
    window().close();
    EXPECT_TRUE(eventually([&] { return !last && windows->mainWindows().empty(); }));
}

TEST_F(TourWindow, EachValueOfTheSummaryHasItsRoom)
{
    auto& shown = open(rides(3, 1).front());
    defaults->setValue(DefaultsKeys::useMiles, true);
    QTest::keyClick(&shown, Qt::Key_D, Qt::ControlModifier | Qt::ShiftModifier);
    const auto& view = *qobject_cast<QScrollArea*>(shown.summaryDrawer().widget());
    const auto fits = [&view] {
        return view.isVisible() && view.widget()->width() <= view.viewport()->width() &&
               view.widget()->width() >= view.widget()->minimumSizeHint().width();
    };
    EXPECT_TRUE(eventually(fits, std::chrono::seconds(2)));
}

TEST_F(TourWindow, MayGoWhileItAsks)
{
    start({dump()});
    for (const auto* action : {"Print…", "Save Chart…", "Link…"}) {
        auto& shown = openSelected();
        click(shown.dataButton());
        click(shown.summaryButton());
        trigger(shown, action);
        EXPECT_TRUE(eventually([] { return QApplication::activeModalWidget() != nullptr; })) << action;
        document().undoManager().undo();
        EXPECT_TRUE(eventually([&] { return window().tourWindows().empty(); })) << action;
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << action;
        document().undoManager().redo();
        window().tourController().selectRow(0);
    }
    auto& shown = openSelected();
    whenAsked<QFileDialog>([&shown, file = path("tours.ridelog")](QFileDialog& panel) {
        shown.close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        panel.selectFile(file);
        static_cast<QDialog&>(panel).done(QDialog::Accepted);
    });
    trigger(shown, "Save");
    EXPECT_FALSE(document().isChanged());
}

TEST_F(TourWindow, FilesDroppedOnItGoToItsDocument)
{
    start({dump()});
    ASSERT_EQ(controller->saveDocumentAs(document(), path("tours.ridelog")), std::nullopt);
    auto& shown = openSelected();
    controller->newDocument();
    QMimeData files;
    const auto other = write("other.odo", RideGenerator{.seed = 9, .tours = 2}.dump());
    files.setUrls({QUrl::fromLocalFile(other)});
    for (QWidget* place : {static_cast<QWidget*>(&shown), shown.text().viewport()}) {
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(place, &enter);
        QCoreApplication::sendEvent(place->window(), &drop);
    }
    EXPECT_TRUE(eventually([&] { return rows() == 7; }));
    EXPECT_TRUE(shown.text().toPlainText().isEmpty());
}

TEST_F(TourWindow, NoTwoActionsShareALetterOrAKey)
{
    start({dump()});
    QStringList keys;
    collectKeys(openSelected().menuBar()->actions(), keys);
    EXPECT_GE(keys.size(), 18);
}

} // namespace
} // namespace ridelog
