#include "device/KSSerialPort.h"

#include "tests/support/LogCapture.h"
#include "tests/support/Process.h"
#include "tests/support/SerialLine.h"
#include "tests/support/TemporaryFolder.h"

#include <cerrno>
#include <cstring>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/ioctl.h>

namespace ridelog {
namespace {

using namespace SerialOptionKeys;

const QString name = QStringLiteral("line");

std::shared_ptr<KSSerialPort> portOf(const SerialLine& line)
{
    return KSSerialPort::init(line.path(), name);
}

TEST(KSSerialPort, SettingsReachTheDeviceWithTheCommitAndGoBackWithTheClose)
{
    const SerialLine line(SerialLine::Kind::asHandedOut);
    const auto before = line.settings();
    const auto port = portOf(line);
    port->setSpeed(300);
    ASSERT_TRUE(port->open());
    EXPECT_EQ(port->getSpeed(), 38400) << "the device's own counts, whatever was set before";
    EXPECT_TRUE(port->testEchoEnabled());

    port->setSpeed(9600);
    port->setStopBits2(true);
    port->setEchoEnabled(false);
    port->setHangupOnClose(false);
    port->setLocal(true);
    port->setCTSOutputFlowControl(true);
    EXPECT_EQ(line.settings().c_cflag, before.c_cflag) << "not before the commit";
    ASSERT_TRUE(port->commitChanges());
    const auto set = line.settings();
    EXPECT_EQ(cfgetospeed(&set), speed_t{B9600});
    EXPECT_EQ(cfgetispeed(&set), speed_t{B9600});
    EXPECT_EQ(set.c_cflag & (CSTOPB | HUPCL | CLOCAL | CRTSCTS), tcflag_t{CSTOPB | CLOCAL | CRTSCTS});
    EXPECT_EQ(set.c_lflag, before.c_lflag & ~tcflag_t{ECHO});
    EXPECT_EQ(set.c_iflag, before.c_iflag);

    port->setInputAtOnce();
    ASSERT_TRUE(port->commitChanges());
    EXPECT_EQ(line.settings().c_lflag & (ICANON | ECHO | ISIG), 0U);
    EXPECT_EQ(line.settings().c_iflag & (ICRNL | IXON), 0U);

    port->close();
    const auto after = line.settings();
    EXPECT_EQ(std::memcmp(&before, &after, sizeof before), 0);
}

TEST(KSSerialPort, AnySpeedCanBeSet)
{
    const SerialLine line;
    const auto port = portOf(line);
    ASSERT_TRUE(port->open());
    for (const int speed : {50, 1200, 115200, 4'000'000, 10'400, 31'250}) {
        port->setSpeed(speed);
        ASSERT_TRUE(port->commitChanges()) << speed;
        const auto other = KSSerialPort::init(line.path(), name);
        ASSERT_TRUE(other->open());
        EXPECT_EQ(other->getSpeed(), speed);
    }
}

TEST(KSSerialPort, QueriesAnswerWhatWasSet)
{
    const auto port = KSSerialPort::init(QStringLiteral("/dev/null"), name);
    port->setDataBits(7);
    EXPECT_EQ(port->getDataBits(), 7);
    port->setDataBits(9);
    EXPECT_EQ(port->getDataBits(), 5);
    port->setParityOdd();
    port->setParityNone();
    EXPECT_FALSE(port->testParity());
    EXPECT_TRUE(port->testParityOdd()) << "only switched off";
    EXPECT_FALSE(port->getOptions().contains(parity));
    port->setParityEven();
    EXPECT_FALSE(port->testParityOdd());

    // Those that the system has no bits for as well
    port->setRTSInputFlowControl(true);
    port->setDTRInputFlowControl(true);
    port->setCTSOutputFlowControl(true);
    port->setCAROutputFlowControl(true);
    EXPECT_TRUE(port->testRTSInputFlowControl() && port->testDTRInputFlowControl());
    EXPECT_FALSE(port->testDSROutputFlowControl());
    port->buildOptionsDictionary();
    EXPECT_EQ(port->getOptions()[inputFlowControl], QStringLiteral("DTR"));
    EXPECT_EQ(port->getOptions()[outputFlowControl], QStringLiteral("CAR"));
    EXPECT_EQ(port->getOptions()[parity], QStringLiteral("Even"));
}

TEST(KSSerialPort, OptionsAreMergedAndCommitted)
{
    const SerialLine line(SerialLine::Kind::asHandedOut);
    const auto port = portOf(line);
    ASSERT_TRUE(port->open());
    port->setEchoEnabled(false);
    const SerialOptions given{{serviceName, name},
                              {speed, QStringLiteral("19200 baud")},
                              {dataBits, QStringLiteral("8")},
                              {stopBits, QStringLiteral("2")},
                              {outputFlowControl, QStringLiteral("CTS")},
                              {echo, QStringLiteral("NO")}};
    port->setOptions(given);
    const auto set = line.settings();
    EXPECT_EQ(cfgetospeed(&set), speed_t{B19200});
    EXPECT_EQ(set.c_cflag & (CSTOPB | CRTSCTS), tcflag_t{CSTOPB | CRTSCTS});
    EXPECT_TRUE((set.c_lflag & ECHO) != 0) << "that there is an entry counts";

    auto expected = given;
    expected[speed] = QStringLiteral("19200");
    expected[echo] = QStringLiteral("YES");
    EXPECT_EQ(port->getOptions(), expected);

    port->setOptions({{serviceName, name}, {stopBits, QStringLiteral("1")}});
    EXPECT_EQ(port->getStopBits(), 1);
    EXPECT_EQ(port->getSpeed(), 19200) << "not told: stays";

    const LogCapture log;
    port->setOptions({{serviceName, QStringLiteral("other")}, {speed, QStringLiteral("300")}});
    EXPECT_EQ(port->getSpeed(), 19200);
    EXPECT_EQ(log.errors(),
              QStringList{QStringLiteral("Error setting options for port line (wrong port name: other).\n")});
}

TEST(KSSerialPort, TellsWhyItCannotBeOpened)
{
    const TemporaryFolder folder;
    const auto file = folder.write("plain", "no serial line");
    const auto descriptors = openDescriptors();
    const struct {
        QString path;
        int error;
    } cases[] = {{QStringLiteral("/dev/no-such-port"), ENOENT},
                 {folder.path(), EISDIR},
                 {file, ENOTTY},
                 {QStringLiteral("/dev/null"), ENOTTY}};
    for (const auto& [path, error] : cases) {
        const LogCapture log;
        const auto port = KSSerialPort::init(path, name);
        EXPECT_FALSE(port->open());
        EXPECT_FALSE(port->isOpen());
        EXPECT_EQ(port->openError(), error);
        const auto* what = error == ENOTTY ? "Error getting tty attributes" : "Error opening serial port";
        EXPECT_EQ(log.errors(), QStringList{QStringLiteral("%1 %2 - %3(%4).\n")
                                                .arg(QString::fromLatin1(what), path,
                                                     QString::fromLocal8Bit(std::strerror(error)))
                                                .arg(error)});
        EXPECT_FALSE(port->commitChanges());
        EXPECT_EQ(port->errorCode(), EBADF);
    }
    EXPECT_EQ(openDescriptors(), descriptors);
}

TEST(KSSerialPort, OneProgramAtATimeClaimsTheDevice)
{
    using Claim = KSSerialPort::Claim;
    const SerialLine line(SerialLine::Kind::asHandedOut);
    const auto first = portOf(line);
    const auto second = portOf(line);
    ASSERT_TRUE(first->open(Claim::yes));
    first->setInputAtOnce();
    ASSERT_TRUE(first->commitChanges());
    EXPECT_FALSE(second->open(Claim::yes));
    EXPECT_EQ(second->openError(), EBUSY);
    EXPECT_EQ(line.settings().c_lflag & ICANON, 0U) << "the first one's settings stay";
    first->close();
    EXPECT_TRUE(second->open(Claim::yes));
    second->close();

    // As other programs do it
    const int other = ::open(qPrintable(line.path()), O_RDWR | O_NOCTTY | O_CLOEXEC);
    ASSERT_GE(other, 0);
    ioctl(other, TIOCEXCL);
    EXPECT_FALSE(second->open(Claim::yes));
    EXPECT_EQ(second->openError(), EBUSY);
    ioctl(other, TIOCNXCL);
    ::close(other);
}

TEST(KSSerialPort, HasOneOwnerAtATime)
{
    const SerialLine line;
    const auto port = portOf(line);
    const int one = 0;
    const int two = 0;
    EXPECT_TRUE(port->available());
    EXPECT_EQ(port->obtainBy(&one), port.get());
    EXPECT_EQ(port->obtainBy(&two), nullptr);
    EXPECT_EQ(port->owner(), &one);
    ASSERT_TRUE(port->open());
    port->free();
    EXPECT_FALSE(port->isOpen());
    EXPECT_EQ(port->obtainBy(&two), port.get());
}

TEST(KSSerialPort, ClosesItsDescriptorOnceAndOnlyThen)
{
    const SerialLine line;
    const auto descriptors = openDescriptors();
    auto port = portOf(line);
    {
        const LogCapture log;
        port->open();
        const auto handle = port->open();
        EXPECT_EQ(log.lines().size(), 1) << "open already";
        EXPECT_EQ(fcntl(handle->descriptor(), F_GETFL) & O_NONBLOCK, 0);
        const auto number = handle->descriptor();
        port->close();
        EXPECT_EQ(handle->descriptor(), -1);
        EXPECT_EQ(openDescriptors(), descriptors);
        EXPECT_EQ(log.lines(), (QStringList{QStringLiteral("open %1 (%2)\n").arg(line.path()).arg(number),
                                            QStringLiteral("possibly leaking fileHandle (%1)\n").arg(number),
                                            QStringLiteral("close (%1)\n").arg(number)}));
        port->close();
        EXPECT_EQ(log.lines().size(), 3);
    }
    ASSERT_TRUE(port->open());
    port.reset();
    EXPECT_EQ(openDescriptors(), descriptors);
}

TEST(KSSerialPort, FlushesAndDrains)
{
    const SerialLine line;
    const auto port = portOf(line);
    ASSERT_TRUE(port->open());
    ASSERT_TRUE(line.send("stale"));
    ASSERT_TRUE(eventually([&] { return port->checkRead() == 1; }));
    port->flushInput(false, false);
    EXPECT_EQ(port->checkRead(), 1);
    port->flushInput(true, false);
    EXPECT_EQ(port->checkRead(), 0);
    EXPECT_EQ(port->writeString(QStringLiteral("höher")), 5);
    port->drainInput();
    port->sendBreak();
    EXPECT_EQ(line.received(), QByteArray("h\xf6her"));
}

} // namespace
} // namespace ridelog
