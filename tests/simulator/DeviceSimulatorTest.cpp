// A device on a real pseudo-terminal, and whoever reads from it in the same program.

#include "simulator/DeviceSimulator.h"

#include "simulator/RideGenerator.h"
#include "tests/support/TemporaryFolder.h"

#include <QCoreApplication>
#include <QTimer>

#include <cerrno>
#include <fcntl.h>
#include <functional>
#include <gtest/gtest.h>
#include <unistd.h>

namespace ridelog {
namespace {

using namespace std::chrono_literals;

const QByteArray& dump()
{
    static const auto bytes = RideGenerator().dump();
    return bytes;
}

/// Lets the event loop run until the condition holds; false if it does not within the limit.
bool waitFor(const std::function<bool()>& condition, std::chrono::milliseconds limit = 20s)
{
    QTimer clock;
    clock.setSingleShot(true);
    clock.start(limit);
    while (!condition()) {
        if (!clock.isActive())
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

/// Whoever has the port open.
class Reader {
public:
    explicit Reader(const QString& path) { open(path); }
    ~Reader() { close(); }
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

    void open(const QString& path)
    {
        _port = ::open(qPrintable(path), O_RDWR | O_NOCTTY | O_NONBLOCK);
        EXPECT_GE(_port, 0) << qPrintable(path);
        _bytes.clear();
    }
    void close()
    {
        if (_port >= 0)
            ::close(std::exchange(_port, -1));
    }
    /// What has come so far.
    const QByteArray& bytes()
    {
        char chunk[4096];
        ssize_t size = 0;
        while ((size = ::read(_port, chunk, sizeof(chunk))) > 0) {
            _bytes.append(chunk, size);
            _largestChunk = std::max(_largestChunk, size);
        }
        _isHungUp = size == 0 || errno == EIO;
        return _bytes;
    }
    bool gets(qsizetype size)
    {
        return waitFor([&] { return bytes().size() >= size; });
    }
    bool isHungUp() const { return _isHungUp; }
    bool hangsUp()
    {
        return waitFor([&] { return bytes(), _isHungUp; });
    }
    ssize_t largestChunk() const { return _largestChunk; }
    bool write(QByteArrayView words) const
    {
        return ::write(_port, words.data(), static_cast<std::size_t>(words.size())) == words.size();
    }

private:
    int _port = -1;
    QByteArray _bytes;
    bool _isHungUp = false;
    ssize_t _largestChunk = 0;
};

/// A device that runs, and what it has told.
class Device : public DeviceSimulator {
public:
    explicit Device(Settings settings = {.speed = 0}) : DeviceSimulator(withDump(std::move(settings)))
    {
        connect(this, &DeviceSimulator::opened, [this] { ++openings; });
        connect(this, &DeviceSimulator::sent, [this](qint64 bytes) { sentBytes = bytes; });
        connect(this, &DeviceSimulator::finished, [this](qint64 bytes) { finishedBytes = bytes; });
        connect(this, &DeviceSimulator::closed, [this](qint64) { ++closings; });
        const auto error = start();
        EXPECT_FALSE(error) << qPrintable(*error);
    }

    int openings = 0;
    int closings = 0;
    qint64 sentBytes = 0;
    qint64 finishedBytes = 0;

private:
    static Settings withDump(Settings settings)
    {
        if (settings.dump.isEmpty())
            settings.dump = dump();
        return settings;
    }
};

qsizetype openDescriptors()
{
    return QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::AllEntries | QDir::System).size();
}

TEST(DeviceSimulator, SendsTheDumpAtEachOpening)
{
    Device device;
    for (int opening = 1; opening <= 3; ++opening) {
        Reader reader(device.path());
        ASSERT_TRUE(reader.gets(dump().size()));
        EXPECT_TRUE(waitFor([&] { return device.finishedBytes == dump().size(); }));
        EXPECT_FALSE(waitFor([&] { return reader.bytes().size() > dump().size(); }, 30ms));
        EXPECT_TRUE(reader.bytes() == dump());
        EXPECT_EQ(device.openings, opening);
        EXPECT_EQ(device.closings, opening - 1);
        reader.close();
        ASSERT_TRUE(waitFor([&] { return device.closings == opening; }));
    }
}

TEST(DeviceSimulator, EachOpeningBeginsAnew)
{
    // Noticed or not: a program may close the port and open it again before the device comes to look.
    for (const bool isNoticed : {true, false}) {
        Device device;
        Reader reader(device.path());
        for (int opening = 1; opening <= 20; ++opening) {
            ASSERT_TRUE(waitFor([&] { return device.openings == opening; }));
            ASSERT_TRUE(reader.gets(1 + 997 * (opening % 10)));
            ASSERT_TRUE(dump().startsWith(reader.bytes())) << "opening " << opening;
            const auto read = reader.bytes().size();
            ASSERT_TRUE(waitFor([&] { return device.sentBytes > read; })) << "and some are left unread";
            reader.close();
            ASSERT_TRUE(!isNoticed || waitFor([&] { return device.closings == opening; }));
            reader.open(device.path());
        }
        ASSERT_TRUE(waitFor([&] { return device.openings == 21; }) && reader.gets(dump().size()));
        EXPECT_TRUE(reader.bytes() == dump());
    }
}

TEST(DeviceSimulator, SomebodyWhoLooksInDoesNotDisturb)
{
    Device device;
    Reader reader(device.path());
    ASSERT_TRUE(reader.gets(10'000));
    for (int looks = 1; looks <= 4; ++looks) {
        Reader(device.path()).close();
        ASSERT_TRUE(looks % 2 == 0 || reader.gets(10'000 * (1 + looks)));
    }
    ASSERT_TRUE(reader.gets(dump().size()));
    EXPECT_TRUE(reader.bytes() == dump());
    EXPECT_EQ(device.openings, 1);
}

TEST(DeviceSimulator, ListensToNobody)
{
    Device device;
    Reader reader(device.path());
    for (int line = 0; line < 1000; ++line)
        ASSERT_TRUE(waitFor([&] { return reader.write(QByteArray(100, '?')); })) << line;
    ASSERT_TRUE(reader.gets(dump().size()));
    EXPECT_TRUE(reader.bytes() == dump());
}

TEST(DeviceSimulator, KeepsThePaceOfTheLine)
{
    constexpr double speed = 100;
    Device device({.speed = speed});
    QElapsedTimer clock;
    clock.start();
    Reader reader(device.path());
    const auto seconds = [&] { return static_cast<double>(clock.nsecsElapsed()) / 1e9; };
    ASSERT_TRUE(waitFor([&] {
        const auto size = static_cast<double>(reader.bytes().size());
        EXPECT_LE(size, seconds() * DeviceSimulator::bytesPerSecond * speed);
        return size == static_cast<double>(dump().size());
    }));
    // 0.85 s; a busy machine may come to it late.
    EXPECT_LT(seconds(), 5);
    EXPECT_TRUE(reader.bytes() == dump());
}

TEST(DeviceSimulator, FaultsOfWhatIsSent)
{
    const auto half = dump().left(40965);
    const auto erased = QByteArray("FFFF ").repeated(1614);
    const std::pair<Fault, QByteArray> cases[]{{Fault::silence, half},
                                               {Fault::shortDump, dump().left(81929)},
                                               {Fault::longDump, dump() + erased},
                                               {Fault::twice, dump() + dump()}};
    for (const auto& one : cases) {
        const auto& expected = one.second;
        Device device({.speed = 0, .fault = one.first});
        Reader reader(device.path());
        ASSERT_TRUE(reader.gets(expected.size()));
        EXPECT_FALSE(waitFor([&] { return reader.bytes().size() > expected.size(); }, 30ms));
        EXPECT_TRUE(reader.bytes() == expected) << static_cast<int>(one.first);
        EXPECT_FALSE(reader.isHungUp());
        EXPECT_EQ(device.finishedBytes, expected.size());
    }

    const auto garbled = faultyDump(dump(), Fault::garbage);
    EXPECT_TRUE(garbled.endsWith(dump()) && garbled.size() > dump().size() && !garbled.startsWith("AFRO"));
    const auto noisy = faultyDump(dump(), Fault::noise);
    ASSERT_EQ(noisy.size(), dump().size());
    EXPECT_TRUE(noisy.startsWith("AFRO") && noisy == faultyDump(dump(), Fault::noise));
    int flips = 0;
    for (qsizetype i = 0; i < noisy.size(); ++i)
        flips += noisy[i] != dump()[i] ? 1 : 0;
    EXPECT_EQ(flips, 82);
}

TEST(DeviceSimulator, FaultsOfHowItIsSent)
{
    {
        Device device({.dump = dump().left(2000), .speed = 0, .fault = Fault::trickle});
        Reader reader(device.path());
        ASSERT_TRUE(reader.gets(2000));
        EXPECT_TRUE(reader.bytes() == dump().left(2000));
        EXPECT_LT(reader.largestChunk(), 100);
    }
    Device device({.speed = 0, .fault = Fault::late, .lateBy = 200ms});
    QElapsedTimer clock;
    clock.start();
    Reader reader(device.path());
    ASSERT_TRUE(reader.gets(1));
    EXPECT_GE(clock.elapsed(), 200);
    EXPECT_TRUE(reader.gets(dump().size()));
}

TEST(DeviceSimulator, CutLineComesBackAsAnotherPort)
{
    const TemporaryFolder folder;
    const auto link = folder.path("bike");
    Device device({.speed = 500, .link = link, .fault = Fault::cut});
    QString newPath;
    QObject::connect(&device, &DeviceSimulator::pathChanged, [&](const QString& path) { newPath = path; });
    for (int opening = 1; opening <= 2; ++opening) {
        const auto oldPath = device.path();
        Reader reader(link);
        ASSERT_TRUE(reader.hangsUp());
        EXPECT_TRUE(dump().left(40965).startsWith(reader.bytes()) && !reader.bytes().isEmpty());
        EXPECT_EQ(device.closings, opening);
        EXPECT_NE(device.path(), oldPath);
        EXPECT_EQ(newPath, device.path());
        EXPECT_EQ(QFile::symLinkTarget(link), device.path());
    }

    QString reason;
    QObject::connect(&device, &DeviceSimulator::failed, [&](const QString& why) { reason = why; });
    QFile::remove(link);
    folder.write("bike", "a tour");
    Reader reader(device.path());
    ASSERT_TRUE(reader.hangsUp());
    EXPECT_TRUE(reason.endsWith(QStringLiteral("something else has that name"))) << qPrintable(reason);
    EXPECT_EQ(device.path(), QString());
    EXPECT_EQ(folder.read("bike"), "a tour");
}

TEST(DeviceSimulator, LinkIsMadeAndTakenAway)
{
    const TemporaryFolder folder;
    const auto link = folder.path("bike");
    const auto start = [&](DeviceSimulator& device) {
        EXPECT_EQ(device.start(), std::nullopt);
        EXPECT_EQ(QFile::symLinkTarget(link), device.path());
    };
    {
        DeviceSimulator device({.dump = dump(), .link = link});
        start(device);
        // Another run takes the name over, and so it stays when this one ends.
        DeviceSimulator next({.dump = dump(), .link = link});
        start(next);
        device.stop();
        EXPECT_EQ(QFile::symLinkTarget(link), next.path());
    }
    EXPECT_EQ(folder.names(), QStringList());
    ASSERT_TRUE(QFile::link(QStringLiteral("/dev/pts/no-more"), link));
    {
        DeviceSimulator device({.dump = dump(), .link = link});
        start(device);
    }

    const auto file = folder.write("tour", "a tour");
    ASSERT_TRUE(QFile::link(file, folder.path("tour-link")) &&
                QFile::link(QStringLiteral("/dev/null"), folder.path("null")) &&
                QDir(folder.path()).mkdir(QStringLiteral("tours")));
    const auto names = folder.names();
    for (const char* name : {"tour", "tour-link", "null", "tours", "no/bike"}) {
        DeviceSimulator device({.dump = dump(), .link = folder.path(name)});
        const auto error = device.start();
        ASSERT_TRUE(error) << name;
        EXPECT_TRUE(error->contains(folder.path(name)));
        EXPECT_EQ(device.path(), QString());
    }
    EXPECT_EQ(folder.names(), names);
}

TEST(DeviceSimulator, ManyOpeningsLeaveNothingOpen)
{
    const auto before = openDescriptors();
    {
        Device device({.dump = dump().left(100), .speed = 0, .fault = Fault::cut});
        for (int opening = 1; opening <= 100; ++opening) {
            const Reader reader(device.path());
            ASSERT_TRUE(waitFor([&] { return device.closings == opening; }));
        }
        QObject::connect(&device, &DeviceSimulator::opened, &device, &DeviceSimulator::stop);
        const Reader reader(device.path());
        EXPECT_TRUE(waitFor([&] { return device.path().isEmpty(); })) << "a slot may stop it";
    }
    EXPECT_EQ(openDescriptors(), before);
}

} // namespace
} // namespace ridelog
