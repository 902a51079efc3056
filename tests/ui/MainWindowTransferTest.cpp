#include "simulator/DeviceSimulator.h"
#include "tests/support/SerialLine.h"
#include "tests/ui/Application.h"

#include <QDockWidget>

namespace ridelog {
namespace {

class Transfer : public Application {
protected:
    void SetUp() override { start(); }
    void plugIn()
    {
        trigger("Simulated Device");
        ASSERT_TRUE(windows->simulatedDevice().isPluggedIn());
        ASSERT_EQ(window().connectView().selectedPort(), windows->simulatedDevice().path());
    }
    void startTransferFrom(DeviceSimulator& device)
    {
        ASSERT_EQ(device.start(), std::nullopt);
        window().connectView().portsPopUp().addItem(device.path(), device.path());
        window().connectView().selectPort(device.path());
        trigger("Start Transfer");
    }
    bool ends()
    {
        return eventually([this] { return !window().isConnected(); });
    }
};

TEST_F(Transfer, BringsTheToursOfTheDevice)
{
    DeviceSimulator device({.dump = RideGenerator().dump(), .speed = 0});
    startTransferFrom(device);
    EXPECT_TRUE(window().isConnected());
    EXPECT_EQ(window().connectView().state(), QStringLiteral("Waiting for the device…"));
    ASSERT_TRUE(ends());
    EXPECT_EQ(rows(), 8);
    EXPECT_EQ(window().message(), QStringLiteral("Finished: 8 tours added, 0 already there."));
    EXPECT_EQ(read("odoData.odo").size(), 81'930);
    EXPECT_EQ(document().undoManager().undoActionName(), QStringLiteral("adding 8 tours"));
    trigger("Start Transfer");
    ASSERT_TRUE(ends());
    EXPECT_EQ(window().message(), QStringLiteral("Finished: 0 tours added, 8 already there."));
}

TEST_F(Transfer, SaysWhatHasBecomeOfAWholeDump)
{
    const SerialLine line;
    window().connectView().portsPopUp().addItem(line.path(), line.path());
    window().connectView().selectPort(line.path());
    const auto receive = [&](const QByteArray& bytes) {
        trigger("Start Transfer");
        EXPECT_TRUE(line.send(bytes) && ends());
        return window().message();
    };
    const auto kept = path("odoData.odo");
    EXPECT_TRUE(receive(QByteArray(81'930, 'x')).endsWith(QStringLiteral("; what arrived is in ") + kept));
    ASSERT_TRUE(QFile::remove(kept) && QDir().mkdir(kept));
    EXPECT_EQ(
        receive(RideGenerator().dump()),
        QStringLiteral("Finished: 8 tours added, 0 already there; what arrived could not be kept in %1: "
                       "it is a folder.")
            .arg(kept));
}

TEST_F(Transfer, KeepsWhatArrivedWhenItIsStoppedOrUnplugged)
{
    for (const bool isStopped : {true, false}) {
        DeviceSimulator device({.dump = RideGenerator().dump(), .speed = 20});
        startTransferFrom(device);
        ASSERT_TRUE(eventually([&] { return window().connectView().state().startsWith(u"Receiving"); }));
        if (isStopped)
            trigger("Stop Transfer");
        else
            device.stop();
        ASSERT_TRUE(ends());
        EXPECT_TRUE(window().message().contains(path("odoData.odo.tmp"))) << qPrintable(window().message());
        EXPECT_GT(read("odoData.odo.tmp").size(), 0);
        EXPECT_TRUE(QFile::remove(path("odoData.odo.tmp")));
        EXPECT_EQ(rows(), 0);
    }
}

TEST_F(Transfer, KeepsWhatArrivedWhenTheProgramIsEnded)
{
    DeviceSimulator device({.dump = RideGenerator().dump(), .speed = 20});
    startTransferFrom(device);
    ASSERT_TRUE(eventually([&] { return window().connectView().state().startsWith(u"Receiving"); }));
    end();
    EXPECT_GT(read("odoData.odo.tmp").size(), 0);
}

TEST_F(Transfer, MadeUpRidesTakeNoRealDumpsPlace)
{
    plugIn();
    trigger("Start Transfer");
    ASSERT_TRUE(ends());
    EXPECT_EQ(rows(), 8);
    windows->simulatedDevice().setSpeed(20);
    trigger("Simulated Device");
    plugIn();
    trigger("Start Transfer");
    ASSERT_TRUE(eventually([&] { return window().connectView().state().startsWith(u"Receiving"); }));
    trigger("Simulated Device");
    ASSERT_TRUE(ends());
    EXPECT_TRUE(window().message().startsWith(QStringLiteral("Broken off")))
        << qPrintable(window().message());
    EXPECT_EQ(names().filter(QStringLiteral("odoData")), QStringList());
}

TEST_F(Transfer, SaysWhyAPortCannotBeOpened)
{
    window().connectView().portsPopUp().addItem(path("none"), path("none"));
    window().connectView().selectPort(path("none"));
    window().startTransfer();
    EXPECT_TRUE(window().connectView().state().contains(QStringLiteral("there is no such port")));
    EXPECT_TRUE(window().isConnected()) << "until the rider lets go";
    QTest::mouseClick(&window().connectView().connectButton(), Qt::LeftButton);
    EXPECT_FALSE(window().isConnected());
    EXPECT_FALSE(QFile::exists(path("odoData.odo.tmp")));
}

TEST_F(Transfer, TheDrawerIsAsItWasAndKnowsItsPort)
{
    window().close();
    QCoreApplication::processEvents();
    end();
    start();
    EXPECT_FALSE(window().connectDrawer().isHidden()) << "nobody has closed it but with its window";
    plugIn();
    const auto simulated = windows->simulatedDevice().path();
    trigger("Connect Drawer");
    EXPECT_TRUE(window().connectDrawer().isHidden());
    EXPECT_FALSE(defaults->boolForKey(DefaultsKeys::drawerOpen));
    EXPECT_EQ(defaults->textForKey(DefaultsKeys::selectedInterfacePort), std::nullopt)
        << "it is somewhere else the next time";
    trigger("Connect Drawer");
    EXPECT_EQ(window().connectView().selectedPort(), simulated);
    trigger("Simulated Device");
    window().connectView().selectPort(QString::fromLatin1(Application::port));
    trigger("Connect Drawer");
    end();
    start();
    EXPECT_TRUE(window().connectDrawer().isHidden());
    trigger("Connect Drawer");
    EXPECT_EQ(window().connectView().selectedPort(), QString::fromLatin1(Application::port));
    window().connectView().portsPopUp().addItem(path("first"), path("first"));
    EXPECT_EQ(windows->simulatedDevice().plugIn(), std::nullopt);
    controller->newDocument();
    EXPECT_EQ(windows->mainWindows().back()->connectView().selectedPort(), windows->simulatedDevice().path());
}

TEST_F(Transfer, IsNotEndedUnasked)
{
    MyDocument saved;
    ASSERT_EQ(saved.saveAs(path("saved.ridelog")), std::nullopt);
    DeviceSimulator device({.dump = RideGenerator().dump(), .speed = 20});
    startTransferFrom(device);
    ASSERT_TRUE(eventually([&] { return window().connectView().state().startsWith(u"Receiving"); }));
    windows->openDocument(path("saved.ridelog"), &window());
    QCoreApplication::processEvents();
    EXPECT_EQ(windows->mainWindows().size(), 2U) << "the new document has something to do";
    windows->mainWindows().at(1)->close();
    answer("Cancel");
    EXPECT_FALSE(window().close());
    EXPECT_TRUE(question.startsWith(QStringLiteral("A transfer from the device is under way")));
    EXPECT_TRUE(window().isConnected());
    answer("Stop Transfer");
    EXPECT_TRUE(window().close());
    EXPECT_GT(read("odoData.odo.tmp").size(), 0);
}

TEST_F(Transfer, FinishesWhileATitleIsTyped)
{
    window().importDump(dump());
    const auto tour = window().tourController().selectedTour();
    plugIn();
    trigger("Start Transfer");
    trigger("Edit Title");
    auto* field = window().tableView().findChild<QLineEdit*>();
    ASSERT_NE(field, nullptr);
    QTest::keyClicks(field, QStringLiteral("Over the pass"));
    ASSERT_TRUE(ends());
    EXPECT_EQ(tour->title(), QStringLiteral("Over the pass"));
    EXPECT_GT(rows(), 5);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    window().tourController().setSelection({tour});
    trigger("Edit Title");
    field = window().tableView().findChild<QLineEdit*>();
    ASSERT_NE(field, nullptr);
    QTest::keyClicks(field, QStringLiteral("And back"));
    trigger("Remove Tour");
    EXPECT_EQ(tour->title(), QStringLiteral("And back"));
}

TEST_F(Transfer, GoesOnWithTheSimulatedDeviceWhereNoneAnswers)
{
    window().connectView().portsPopUp().addItem(path("none"), path("none"));
    window().connectView().selectPort(path("none"));
    trigger("Start Transfer");
    EXPECT_TRUE(window().isConnected());
    plugIn();
    EXPECT_FALSE(window().isConnected()) << "Press Connect, it says";
    window().searchField().setText(QStringLiteral("nothing like that"));
    QTest::mouseClick(&window().connectView().connectButton(), Qt::LeftButton);
    ASSERT_TRUE(ends());
    EXPECT_EQ(rows(), 8) << "what has come is to be seen";
}

} // namespace
} // namespace ridelog
