#include "simulator/DeviceSimulator.h"
#include "tests/ui/Application.h"
#include "ui/StartWindow.h"

#include <QDockWidget>
#include <QHeaderView>
#include <QMimeData>
#include <QProcess>
#include <QScreen>
#include <QStandardItemModel>

namespace ridelog {
namespace {

class MainWindow : public Application {};

TEST_F(MainWindow, TheFirstStartShowsAnEmptyDocumentAndHowToFillIt)
{
    start();
    ASSERT_EQ(windows->mainWindows().size(), 1U);
    EXPECT_FALSE(window().connectDrawer().isHidden());
    EXPECT_FALSE(window().tableView().isVisible()) << "two buttons in its place";
    EXPECT_TRUE(window().windowTitle().startsWith(QStringLiteral("Untitled")));
    EXPECT_FALSE(window().isWindowModified());
}

TEST_F(MainWindow, AnImportShowsTheNewestTourAndCanBeTakenBack)
{
    start();
    window().importDump(dump());
    EXPECT_EQ(rows(), 5);
    EXPECT_TRUE(window().tableView().isVisible());
    EXPECT_EQ(window().tourController().selectedRows(), std::vector<int>{0});
    EXPECT_EQ(window().message(), QStringLiteral("ride.odo: 5 tours added, 0 already there."));
    EXPECT_EQ(window().chartView().dataProvider(), window().tourController().selectedTour());
    EXPECT_TRUE(window().isWindowModified());
    window().importDump(dump());
    EXPECT_EQ(window().message(), QStringLiteral("ride.odo: 0 tours added, 5 already there."));

    ASSERT_NE(action(QStringLiteral("Undo adding 5 tours")), nullptr);
    trigger("Undo adding 5 tours");
    EXPECT_EQ(rows(), 0);
    EXPECT_FALSE(window().isWindowModified());
    trigger("Redo adding 5 tours");
    EXPECT_EQ(rows(), 5);

    window().importDump(write("no.odo", "no dump"));
    EXPECT_TRUE(window().message().startsWith(QStringLiteral("no.odo was not imported: ")));
    EXPECT_EQ(rows(), 5);
}

TEST_F(MainWindow, OrderSelectionAndColumnsAreAsTheyWere)
{
    start();
    window().importDump(dump());
    ASSERT_EQ(controller->saveDocumentAs(document(), path("tours.ridelog")), std::nullopt);
    auto& header = *window().tableView().horizontalHeader();
    const auto distance = TourColumns::columnWithKey(TourKey::totalDistance);
    const QPoint place(header.sectionViewportPosition(distance) + 20, header.height() / 2);
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, place);
    const auto& sorted = window().tourController().arrangedObjects();
    EXPECT_TRUE(std::ranges::is_sorted(sorted, {}, [](const auto& tour) { return tour->totalDistance(); }));
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, place);
    EXPECT_TRUE(std::ranges::is_sorted(sorted, std::greater(),
                                       [](const auto& tour) { return tour->totalDistance(); }));
    window().tourController().selectRow(3);
    const auto description = window().tourController().selectedTour()->description();
    window().tableView().setColumnHidden(distance, true);
    end();

    start();
    EXPECT_EQ(document().path(), path("tours.ridelog"));
    EXPECT_EQ(window().tourController().selectedRows(), std::vector<int>{3});
    EXPECT_EQ(window().tourController().selectedTour()->description(), description);
    EXPECT_EQ(window().tourController().sortDescriptors().front(),
              (SortDescriptor{TourKey::totalDistance, false}));
    EXPECT_TRUE(window().tableView().isColumnHidden(distance));
    // Several rows are nobody's choice of a tour.
    const auto shown = window().chartView().dataProvider();
    window().tourController().selectRows({0, 1});
    EXPECT_EQ(window().chartView().dataProvider(), shown);
    EXPECT_EQ(defaults->integerForKey(DefaultsKeys::selectedRow), 3);
    EXPECT_EQ(window().tableView().selectionModel()->selectedRows().size(), 2);
}

TEST_F(MainWindow, ATitleIsEditedInPlaceAndTakesItsPlace)
{
    start();
    window().importDump(dump());
    auto& table = window().tableView();
    window().tourController().setSortDescriptors({{TourKey::title, true}, {TourKey::date, true}});
    window().tourController().selectRow(0);
    const auto tour = window().tourController().selectedTour();
    QTest::keyClick(&table, Qt::Key_F2);
    trigger("Edit Title");
    auto* field = table.findChild<QLineEdit*>();
    ASSERT_NE(field, nullptr);
    QTest::keyClicks(field, QStringLiteral("Over the pass"));
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_TRUE(eventually([&] { return window().tourController().rowOf(*tour) == 4; }));
    EXPECT_EQ(cell(4, TourKey::title), QStringLiteral("Over the pass"));
    EXPECT_EQ(window().tourController().selectedTour(), tour) << "it is still selected";
    trigger("Undo change title");
    EXPECT_EQ(tour->title(), OdoTour::untitled());
}

TEST_F(MainWindow, ATitleStaysWholeWhereNothingIsTyped)
{
    start();
    window().importDump(dump());
    const auto tour = window().tourController().selectedTour();
    for (const auto& title : {QString(40'000, u'x'), QStringLiteral(" two\nlines ")}) {
        tour->setTitle(title);
        trigger("Edit Title");
        QTest::keyClick(window().tableView().findChild<QLineEdit*>(), Qt::Key_Return);
        EXPECT_TRUE(tour->title() == title);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

TEST_F(MainWindow, RemovedToursAreHiddenOrGreyAndComeBack)
{
    start();
    window().importDump(dump());
    const auto tour = window().tourController().selectedTour();
    trigger("Remove Tour");
    EXPECT_EQ(rows(), 4);
    EXPECT_TRUE(tour->removed());
    auto* show = action(QStringLiteral("Show Removed Tours"));
    show->trigger();
    EXPECT_EQ(rows(), 5);
    const auto* model = window().tableView().model();
    const auto row = window().tourController().rowOf(*tour);
    EXPECT_TRUE(model->index(row, 0).data(Qt::ForegroundRole).isValid());
    EXPECT_FALSE(model->index(row + 1, 0).data(Qt::ForegroundRole).isValid());
    window().tourController().selectRow(row);
    trigger("Restore Tour");
    EXPECT_FALSE(tour->removed());
    trigger("Undo tour removed");
    trigger("Undo tour removed");
    EXPECT_FALSE(tour->removed());
    show->trigger();
    EXPECT_EQ(rows(), 5);
}

TEST_F(MainWindow, TheSearchNarrowsTheTable)
{
    start();
    window().importDump(dump());
    window().tourController().arrangedObjects()[2]->setTitle(QStringLiteral("Große Runde"));
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    trigger("Find");
    auto& field = window().searchField();
    ASSERT_TRUE(field.hasFocus());
    QTest::keyClicks(&field, QStringLiteral("GROSSE"));
    EXPECT_EQ(rows(), 0);
    field.clear();
    QTest::keyClicks(&field, QStringLiteral("runde gro"));
    EXPECT_EQ(rows(), 1) << "every word, in any order and case";
    QTest::keyClick(&field, Qt::Key_Escape);
    EXPECT_EQ(rows(), 5);
    QTest::keyClicks(&field, document().toursArray()[0]->date().toString(QStringLiteral("yyyy-MM-dd")));
    EXPECT_EQ(rows(), 1);
}

TEST_F(MainWindow, UnitsSwitchEverywhereAtOnce)
{
    start();
    window().importDump(dump());
    const auto kilometres = cell(0, TourKey::totalDistance);
    EXPECT_TRUE(kilometres.endsWith(QStringLiteral("km")));
    EXPECT_EQ(window().distanceField().text(), kilometres);
    const auto chart = window().chartView().grab().toImage();
    trigger("Miles, mph and Feet");
    EXPECT_TRUE(cell(0, TourKey::totalDistance).endsWith(QStringLiteral("mi")));
    EXPECT_EQ(window().distanceField().text(), cell(0, TourKey::totalDistance));
    EXPECT_TRUE(window().speedField().text().endsWith(QStringLiteral("mph")));
    const auto gain = TourColumns::columnWithKey(TourKey::elevationGain);
    EXPECT_TRUE(window().tableView().model()->headerData(gain, Qt::Horizontal).toString().contains(u"(ft)"));
    EXPECT_NE(window().chartView().grab().toImage(), chart);
}

TEST_F(MainWindow, SettingsThatMakeNoSenseAreNoObstacle)
{
    start({dump()});
    ASSERT_EQ(controller->saveDocumentAs(document(), path("tours.ridelog")), std::nullopt);
    window().setGeometry(90'000, 90'000, 800, 600);
    end();
    {
        Defaults odd(path("settings"));
        odd.setValue(DefaultsKeys::selectedRow, 4'000'000);
        odd.setValue(DefaultsKeys::sortDesc, QStringLiteral("tomorrow:sideways"));
        odd.setValue(DefaultsKeys::mainTableColumns, QByteArray("no columns"));
        odd.setValue(DefaultsKeys::mainWindowState, QByteArray("no state"));
        odd.setValue(DefaultsKeys::mainSplitter, 12);
    }
    start();
    EXPECT_EQ(window().tourController().selectedRows(), std::vector<int>{4}) << "the last one";
    EXPECT_EQ(window().tourController().sortDescriptors(), newestFirst());
    EXPECT_TRUE(window().screen()->availableGeometry().intersects(window().frameGeometry()));

    for (int column = 0; column < TourColumns::count(); ++column)
        window().tableView().setColumnHidden(column, true);
    end();
    start();
    EXPECT_FALSE(window().tableView().isColumnHidden(TourColumns::columnWithKey(TourKey::date)));
}

} // namespace
} // namespace ridelog
