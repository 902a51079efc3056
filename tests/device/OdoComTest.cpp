#include "device/OdoCom.h"

#include "device/PortProblem.h"
#include "tests/support/LogCapture.h"
#include "tests/support/Process.h"
#include "tests/support/SerialLine.h"
#include "tests/support/TemporaryFolder.h"

#include <QFileInfo>
#include <QStringList>

#include <cerrno>
#include <gtest/gtest.h>
#include <malloc.h>
#include <memory>

namespace ridelog {
namespace {

class Rider : public OdoComDelegate {
public:
    explicit Rider(bool wantsProgress = true) : _wantsProgress(wantsProgress) {}
    bool handlesTransferProgress() const override { return _wantsProgress; }
    void handleTransferStarted() override { heard += QStringLiteral("started"); }
    void handleTransferProgress(std::int32_t bytes) override
    {
        if (counted == 0)
            heard += QStringLiteral("progress");
        counted += bytes;
    }
    void handleTransferFinished() override { heard += QStringLiteral("finished"); }
    void handleTransferBrokenOff() override { heard += QStringLiteral("broken off"); }

    bool hasHeard(const char* word) const { return heard.contains(QString::fromLatin1(word)); }

    QStringList heard;
    qint64 counted = 0;

private:
    bool _wantsProgress;
};

QByteArray dumpOf(qsizetype size)
{
    return QByteArray("AFRO ").leftJustified(size, '7', true);
}

TEST(OdoCom, CollectsAWholeDump)
{
    const SerialLine line;
    Rider rider;
    OdoCom session(line.path());
    session.setDelegate(&rider);
    ASSERT_TRUE(session.startReading());
    EXPECT_FALSE(session.startReading()) << "it has its port";
    const auto dump = dumpOf(OdoCom::wholeDump);
    ASSERT_TRUE(line.send(dump.chopped(1)));
    ASSERT_TRUE(eventually([&] { return session.odoData().size() == dump.size() - 1; }));
    EXPECT_FALSE(rider.hasHeard("finished"));
    ASSERT_TRUE(line.send("7more"));
    ASSERT_TRUE(eventually([&] { return rider.hasHeard("finished"); }));
    EXPECT_EQ(session.odoData(), dump + "more");
    EXPECT_EQ(rider.heard, (QStringList{QStringLiteral("started"), QStringLiteral("progress"),
                                        QStringLiteral("finished")}));
    EXPECT_EQ(rider.counted, session.odoData().size());
}

TEST(OdoCom, ProgressIsForThoseWhoWantIt)
{
    const SerialLine line;
    Rider rider(false);
    const LogCapture log;
    OdoCom session(line.path());
    session.setDelegate(&rider);
    session.setDelegate(&rider);
    EXPECT_EQ(log.lines(), QStringList{QStringLiteral("delegateHandlesProgress 0")});
    ASSERT_TRUE(session.startReading());
    ASSERT_TRUE(line.send(dumpOf(OdoCom::wholeDump)));
    ASSERT_TRUE(eventually([&] { return rider.hasHeard("finished"); }));
    EXPECT_EQ(rider.heard, (QStringList{QStringLiteral("started"), QStringLiteral("finished")}));
}

TEST(OdoCom, SetsTheLineForTheDevice)
{
    for (const auto stopBits : {OdoCom::StopBits::one, OdoCom::StopBits::two}) {
        const SerialLine line;
        auto before = line.settings();
        before.c_cc[VMIN] = 200;
        before.c_lflag |= ECHO; // as somebody has set it up
        cfsetospeed(&before, B300);
        tcsetattr(line.end(), TCSANOW, &before);
        OdoCom session(line.path(), stopBits);
        ASSERT_TRUE(session.startReading());
        const auto set = line.settings();
        EXPECT_EQ(cfgetospeed(&set), speed_t{B9600});
        EXPECT_EQ(set.c_cflag & (CSIZE | PARENB), tcflag_t{CS8});
        EXPECT_EQ(set.c_cc[VMIN], 1) << "the last bytes do not wait for more";
        EXPECT_EQ((set.c_cflag & CSTOPB) != 0, stopBits == OdoCom::StopBits::two);
        EXPECT_EQ(set.c_lflag, before.c_lflag);
        EXPECT_EQ(set.c_iflag, before.c_iflag);
    }
}

TEST(OdoCom, ADumpGetsThroughALineAsTheSystemHandsItOut)
{
    const SerialLine line(SerialLine::Kind::asHandedOut);
    Rider rider;
    OdoCom session(line.path());
    session.setDelegate(&rider);
    ASSERT_TRUE(session.startReading());
    const auto dump = dumpOf(OdoCom::wholeDump);
    ASSERT_TRUE(line.send(dump));
    ASSERT_TRUE(eventually([&] { return rider.hasHeard("finished"); }));
    EXPECT_EQ(session.odoData(), dump);
    EXPECT_TRUE(line.received().isEmpty()) << "nothing is sent to the device";
}

TEST(OdoCom, APortThatCannotBeHadStartsNothing)
{
    const LogCapture log;
    OdoCom session(QStringLiteral("/dev/no-such-port"));
    EXPECT_FALSE(session.startReading());
    EXPECT_FALSE(session.port());
    EXPECT_EQ(session.openError(), ENOENT);
    EXPECT_EQ(log.lines().first(), QStringLiteral("attempting to open port"));
    EXPECT_EQ(log.errors().last(), QStringLiteral("couldn't open port for device "));

    const SerialLine line;
    OdoCom first(line.path());
    OdoCom second(line.path());
    ASSERT_TRUE(first.startReading());
    EXPECT_FALSE(second.startReading());
    EXPECT_EQ(second.openError(), EBUSY);
}

TEST(OdoCom, AHangUpEndsTheTransfer)
{
    for (const qsizetype sent : {0, 5000}) {
        SerialLine line;
        Rider rider;
        const LogCapture log;
        OdoCom session(line.path());
        session.setDelegate(&rider);
        ASSERT_TRUE(session.startReading());
        ASSERT_TRUE(line.send(dumpOf(sent)));
        ASSERT_TRUE(eventually([&] { return session.odoData().size() == sent; }));
        line.hangUp();
        ASSERT_TRUE(eventually([&] { return rider.hasHeard("broken off"); }));
        EXPECT_EQ(log.lines().last(), QStringLiteral("port closed\r"));
        EXPECT_FALSE(rider.hasHeard("finished"));
        EXPECT_EQ(session.odoData().size(), sent);
    }
}

TEST(OdoCom, AStoppedTransferKeepsWhatArrived)
{
    const SerialLine line;
    Rider rider;
    OdoCom session(line.path());
    session.setDelegate(&rider);
    ASSERT_TRUE(session.startReading());
    ASSERT_TRUE(line.send(dumpOf(5000)));
    ASSERT_TRUE(eventually([&] { return session.odoData().size() == 5000 && isAnyThreadPolling(); }));
    session.stopReading();
    ASSERT_TRUE(line.send(dumpOf(100)));
    ASSERT_TRUE(eventually([&] { return session.port()->numberOfReadInBackgroundThreads() == 0; }));
    EXPECT_EQ(session.odoData(), dumpOf(5000));
    EXPECT_FALSE(rider.hasHeard("finished") || rider.hasHeard("broken off"));
}

TEST(OdoCom, AStopHoldsWheneverItComes)
{
    struct Hasty : Rider {
        void handleTransferProgress(std::int32_t) override { session->stopReading(); }
        OdoCom* session = nullptr;
    };
    for (const bool beforeTheThread : {true, false}) {
        const SerialLine line;
        Hasty hasty;
        OdoCom session(line.path());
        hasty.session = &session;
        session.setDelegate(&hasty);
        ASSERT_TRUE(session.startReading());
        if (beforeTheThread)
            session.stopReading();
        ASSERT_TRUE(line.send(dumpOf(4000)));
        ASSERT_TRUE(eventually([&] { return session.port()->numberOfReadInBackgroundThreads() == 0; }));
        QCoreApplication::sendPostedEvents();
        EXPECT_LE(session.odoData().size(), beforeTheThread ? 0 : 4000);
        EXPECT_FALSE(hasty.hasHeard("finished"));
    }
}

TEST(OdoCom, ASessionThatHasGoneHearsNothingOfItsPort)
{
    const SerialLine line;
    std::shared_ptr<KSSerialPort> port;
    {
        OdoCom session(line.path());
        ASSERT_TRUE(session.startReading());
        port = session.port();
        session.setPort(nullptr);
        EXPECT_FALSE(port->delegate());
    }
    ASSERT_TRUE(line.send("late"));
    EXPECT_TRUE(eventually([&] { return port->numberOfReadInBackgroundThreads() == 0; }));
}

TEST(OdoCom, TwoHundredTransfersLeaveNothingBehind)
{
    const SerialLine line;
    const auto dump = dumpOf(OdoCom::wholeDump);
    // Destroyed from its own message, as a window does it
    struct Window : Rider {
        void handleTransferFinished() override { session.reset(); }
        std::unique_ptr<OdoCom> session;
    };
    Window window;
    const auto threadsBefore = threads().size();
    const auto descriptorsBefore = openDescriptors();
    std::size_t memoryBefore = 0;
    for (int i = 0; i < 200; ++i) {
        window.session = std::make_unique<OdoCom>(line.path());
        window.session->setDelegate(&window);
        ASSERT_TRUE(window.session->startReading());
        ASSERT_TRUE(line.send(dump));
        ASSERT_TRUE(eventually([&] { return !window.session; }));
        if (i == 20)
            memoryBefore = mallinfo2().uordblks;
    }
    EXPECT_EQ(window.counted, 200 * dump.size());
    EXPECT_TRUE(eventually([&] { return threads().size() <= threadsBefore; }));
    EXPECT_EQ(openDescriptors(), descriptorsBefore);
    constexpr std::size_t oneDump = OdoCom::wholeDump;
    EXPECT_LT(mallinfo2().uordblks, memoryBefore + oneDump) << "less than one of 180";
}

TEST(PortProblem, HasOneMessageForOneCause)
{
    const TemporaryFolder folder;
    const auto file = folder.write("plain", "no serial line");
    EXPECT_EQ(whyPortFailed(folder.path(), EISDIR), QStringLiteral("a folder, not a serial port"));
    EXPECT_EQ(whyPortFailed(file, EACCES), QStringLiteral("not a serial port"));
    EXPECT_EQ(whyPortFailed(QStringLiteral("/dev/null"), ENOTTY), QStringLiteral("not a serial port"));
    EXPECT_EQ(whyPortFailed(QStringLiteral("/dev/no-such-port"), ENOENT),
              QStringLiteral("there is no such port"));
    EXPECT_EQ(whyPortFailed(QStringLiteral("/dev/null"), EBUSY), QStringLiteral("in use by another program"));
    const QFileInfo device(QStringLiteral("/dev/tty")); // for everybody's groups
    const auto denied = whyPortFailed(device.filePath(), EACCES);
    EXPECT_TRUE(denied.startsWith(QStringLiteral("permission denied")));
    EXPECT_EQ(denied.contains(QStringLiteral("group %1 ").arg(device.group())), device.groupId() != 0);
    EXPECT_EQ(whyTransferWasStopped(4'096, 81'930), QStringLiteral("stopped after 4,096 of 81,930 bytes"));
    EXPECT_EQ(whyTransferBrokeOff(0, 81'930),
              QStringLiteral("the port was closed or unplugged before anything arrived"));
    EXPECT_EQ(whyTransferFellSilent(40'960, 81'930, 5),
              QStringLiteral("the device fell silent after 40,960 of 81,930 bytes: nothing for 5 s"));
}

} // namespace
} // namespace ridelog
