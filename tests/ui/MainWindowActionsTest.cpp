#include "tests/ui/Application.h"
#include "tests/ui/MenuKeys.h"

#include <QDesktopServices>
#include <QDockWidget>
#include <QMenuBar>

namespace ridelog {
namespace {

class MainWindowActions : public Application {
protected:
    void press(QKeyCombination keys)
    {
        QTest::keyClick(&window(), keys.key(), keys.keyboardModifiers());
        QCoreApplication::processEvents();
    }
};

TEST_F(MainWindowActions, NoTwoShareALetterOrAKey)
{
    start({dump()});
    QStringList keys;
    collectKeys(window().menuBar()->actions(), keys);
    EXPECT_GE(keys.size(), 25);
}

TEST_F(MainWindowActions, AreThereByKey)
{
    start({dump()});
    ASSERT_EQ(controller->saveDocumentAs(document(), path("tours.ridelog")), std::nullopt);
    inFront(window());
    auto& table = window().tableView();
    EXPECT_TRUE(table.hasFocus());
    const std::vector<QWidget*> order{&window().distanceField(),
                                      &window().speedField(),
                                      &window().connectView().portsPopUp(),
                                      &window().connectView().connectButton(),
                                      &window().connectView().troubleButton(),
                                      &window().searchField(),
                                      &table};
    for (auto* next : order) {
        press(Qt::Key_Tab);
        EXPECT_TRUE(next->hasFocus()) << next->metaObject()->className();
    }
    QTest::keyClick(&table, Qt::Key_Delete);
    QCoreApplication::processEvents();
    QTest::keyClick(&table, Qt::Key_Delete);
    EXPECT_EQ(rows(), 3) << "the next one is selected after the first";
    press(Qt::CTRL | Qt::Key_Z);
    EXPECT_EQ(rows(), 4);
    press(Qt::CTRL | Qt::SHIFT | Qt::Key_Z);
    EXPECT_EQ(rows(), 3);
    press(Qt::CTRL | Qt::SHIFT | Qt::Key_R);
    EXPECT_EQ(rows(), 5);
    press(Qt::CTRL | Qt::Key_A);
    EXPECT_EQ(window().tourController().selection().size(), 5U);
    QTest::keyClick(&table, Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_EQ(window().message(), QStringLiteral("2 tours restored."));
    press(Qt::CTRL | Qt::SHIFT | Qt::Key_R);
    EXPECT_EQ(rows(), 5);
    EXPECT_EQ(window().message(), QString()) << "that was the action before";

    press(Qt::CTRL | Qt::Key_F);
    ASSERT_TRUE(window().searchField().hasFocus());
    QTest::keyClicks(&window().searchField(), QStringLiteral("xy"));
    QTest::keyClick(&window().searchField(), Qt::Key_Delete);
    EXPECT_EQ(rows(), 0);
    EXPECT_EQ(document().toursArray().size(), 5U);
    QTest::keyClick(&window().searchField(), Qt::Key_Escape);
    EXPECT_EQ(std::ranges::count_if(document().toursArray(), &OdoTour::removed), 0)
        << "Delete means a letter in a text field";

    press(Qt::CTRL | Qt::SHIFT | Qt::Key_M);
    EXPECT_TRUE(defaults->boolForKey(DefaultsKeys::useMiles));
    press(Qt::CTRL | Qt::SHIFT | Qt::Key_K);
    EXPECT_FALSE(defaults->boolForKey(DefaultsKeys::useMiles));
    press(Qt::CTRL | Qt::Key_D);
    EXPECT_TRUE(window().connectDrawer().isHidden());
    press(Qt::CTRL | Qt::SHIFT | Qt::Key_D);
    EXPECT_FALSE(window().connectDrawer().isHidden());
    press(Qt::CTRL | Qt::Key_T);
    EXPECT_TRUE(window().isConnected());
    press(Qt::CTRL | Qt::Key_Period);
    EXPECT_FALSE(window().isConnected());

    EXPECT_TRUE(window().isWindowModified());
    press(Qt::CTRL | Qt::Key_S);
    EXPECT_FALSE(window().isWindowModified());
    choose(path("copy"));
    press(Qt::CTRL | Qt::SHIFT | Qt::Key_S);
    EXPECT_EQ(document().path(), path("copy.ridelog"));
    inFront(window());
    answer("Cancel");
    press(Qt::Key_F5);
    EXPECT_TRUE(question.startsWith(QStringLiteral("Go back to what copy.ridelog holds?")));
    inFront(window());
    choose(dump(9, 3));
    press(Qt::CTRL | Qt::Key_I);
    EXPECT_TRUE(eventually([&] { return rows() == 8; }));
    EXPECT_TRUE(window().save());
    inFront(window());
    choose(path("tours.ridelog"));
    press(Qt::CTRL | Qt::Key_O);
    EXPECT_TRUE(eventually([&] { return windows->mainWindows().size() == 2; }));
    inFront(window());
    press(Qt::CTRL | Qt::Key_N);
    ASSERT_EQ(windows->mainWindows().size(), 3U);
    inFront(window());
    press(action(QStringLiteral("Close"))->shortcut()[0]); // not the same on every platform
    EXPECT_TRUE(eventually([&] { return windows->mainWindows().size() == 2; }));
    inFront(window());
    press(Qt::CTRL | Qt::Key_Q);
    EXPECT_TRUE(eventually([&] { return windows->mainWindows().empty(); }));
}

TEST_F(MainWindowActions, MenusThatAreFilledWhenTheyOpenLeadSomewhere)
{
    start({dump()});
    choose(path("a&b.ridelog"));
    EXPECT_TRUE(window().saveAs());
    windows->openDocument(path("a&b.ridelog"));
    controller->newDocument();
    const auto open = [this](const char* title) {
        auto* menu = action(QString::fromUtf8(title))->menu();
        Q_EMIT menu->aboutToShow();
        return menu->actions();
    };
    EXPECT_EQ(open("Window").at(2)->text(), QStringLiteral("&1  a&&b"));
    EXPECT_EQ(open("Window").at(3)->text(), QStringLiteral("&2  Untitled"));
    windows->mainWindows().at(1)->close();
    ASSERT_TRUE(eventually([&] { return windows->mainWindows().size() == 1; }));
    open("Open Recent").at(0)->trigger();
    EXPECT_EQ(windows->mainWindows().size(), 1U) << "it is open";

    const auto gain = TourColumns::columnWithKey(TourKey::elevationGain);
    open("Sort By").at(gain)->trigger();
    const auto& sorted = window().tourController().arrangedObjects();
    EXPECT_TRUE(std::ranges::is_sorted(sorted, {}, [](const auto& tour) { return tour->elevationGain(); }));
    EXPECT_TRUE(open("Sort By").at(gain)->isChecked());
    open("Sort By").constLast()->trigger();
    EXPECT_TRUE(std::ranges::is_sorted(sorted, std::greater(),
                                       [](const auto& tour) { return tour->elevationGain(); }));
    open("Columns").at(gain)->trigger();
    EXPECT_TRUE(window().tableView().isColumnHidden(gain));
}

} // namespace
} // namespace ridelog
