#include "device/KSSerialPort.h"
#include "tests/support/LogCapture.h"
#include "tests/support/Process.h"
#include "tests/support/SerialLine.h"

#include <QList>
#include <QThread>

#include <gtest/gtest.h>
#include <memory>
#include <optional>

namespace ridelog {
namespace {

/// Collects what a port tells, and asks for more as long as it is told to.
class Listener : public KSSerialPortDelegate {
public:
    bool handlesReadInBackground() const override { return reads; }
    bool handlesWriteInBackground() const override { return writes; }
    void serialPortReadData(const ReadData& read) override
    {
        EXPECT_EQ(QThread::currentThread(), qApp->thread());
        chunks.push_back(read.data);
        bytes += read.data;
        if (asksAgain && !read.data.isEmpty())
            read.serialPort.readDataInBackground();
    }
    void serialPortWriteProgress(const WriteProgress& write) override
    {
        EXPECT_EQ(QThread::currentThread(), qApp->thread());
        progress.push_back({write.value, write.total});
    }

    bool reads = true;
    bool writes = true;
    bool asksAgain = false;
    QByteArrayList chunks;
    QByteArray bytes;
    QList<std::pair<qint64, qint64>> progress;
};

class BackgroundIo : public testing::Test {
protected:
    void SetUp() override
    {
        port = KSSerialPort::init(line.path(), QStringLiteral("line"));
        port->setDelegate(&listener);
        ASSERT_TRUE(port->open());
    }
    void TearDown() override { port.reset(); }

    bool noThreads() const
    {
        return port->numberOfReadInBackgroundThreads() == 0 && port->numberOfWriteInBackgroundThreads() == 0;
    }

    SerialLine line;
    Listener listener;
    std::shared_ptr<KSSerialPort> port;
};

QByteArray someBytes(qsizetype count)
{
    QByteArray bytes(count, '\0');
    for (qsizetype i = 0; i < count; ++i)
        bytes[i] = static_cast<char>((i * 7 + i / 251) & 0xFF);
    return bytes;
}

// Reading

TEST_F(BackgroundIo, ReadsOneChunkAtATimeInOrder)
{
    const auto sent = someBytes(100'000);
    listener.asksAgain = true;
    port->readDataInBackground();
    ASSERT_TRUE(line.send(sent));
    ASSERT_TRUE(eventually([&] { return listener.bytes.size() == sent.size(); }));
    EXPECT_EQ(listener.bytes, sent);
    for (const auto& chunk : listener.chunks)
        EXPECT_LE(chunk.size(), 4096);
}

TEST_F(BackgroundIo, WhatIsNotAskedForStaysOnTheLine)
{
    port->readDataInBackground();
    ASSERT_TRUE(line.send("first"));
    ASSERT_TRUE(eventually([&] { return listener.chunks.size() == 1 && noThreads(); }));
    ASSERT_TRUE(line.send("second"));
    ASSERT_TRUE(eventually([&] { return port->checkRead() == 1; }));
    EXPECT_EQ(port->checkRead(), 1) << "looking does not take it";
    EXPECT_EQ(port->readString(), QStringLiteral("second"));
    EXPECT_EQ(listener.chunks, QByteArrayList{"first"});
}

TEST_F(BackgroundIo, AStoppedReadLeavesTheInputToTheNextOne)
{
    port->readDataInBackground();
    ASSERT_TRUE(eventually(isAnyThreadPolling));
    port->stopReadInBackground();
    ASSERT_TRUE(line.send("kept"));
    ASSERT_TRUE(eventually([&] { return noThreads(); }));
    EXPECT_TRUE(listener.chunks.isEmpty());
    port->readDataInBackground();
    ASSERT_TRUE(eventually([&] { return !listener.chunks.isEmpty(); }));
    EXPECT_EQ(listener.chunks, QByteArrayList{"kept"});
}

TEST_F(BackgroundIo, AReadThatWaitsEndsWithAnEmptyChunkWhenThePortIsClosedOrTheLineHangsUp)
{
    port->readDataInBackground();
    ASSERT_TRUE(eventually(isAnyThreadPolling));
    port->close();
    ASSERT_TRUE(eventually([&] { return listener.chunks.size() == 1 && noThreads(); }));

    ASSERT_TRUE(port->open());
    port->readDataInBackground();
    ASSERT_TRUE(eventually(isAnyThreadPolling));
    line.hangUp();
    ASSERT_TRUE(eventually([&] { return listener.chunks.size() == 2 && noThreads(); }));

    port->close();
    port->readDataInBackground();
    ASSERT_TRUE(eventually([&] { return listener.chunks.size() == 3; }));
    EXPECT_EQ(listener.chunks, (QByteArrayList{{}, {}, {}}));
}

TEST_F(BackgroundIo, AReadFromBeforeTheCloseDoesNotTakeWhatComesAfterIt)
{
    port->readDataInBackground();
    ASSERT_TRUE(eventually(isAnyThreadPolling));
    port->close();
    ASSERT_TRUE(port->open());
    port->readDataInBackground();
    ASSERT_TRUE(line.send("new"));
    ASSERT_TRUE(eventually([&] { return listener.chunks.size() == 2; }));
    EXPECT_EQ(listener.chunks, (QByteArrayList{{}, "new"}));
}

TEST_F(BackgroundIo, AReadWhoseInputVanishesDoesNotHoldUpTheClose)
{
    for (int i = 0; i < 500; ++i) {
        port->readDataInBackground();
        ASSERT_EQ(::write(line.end(), "x", 1), 1);
        port->flushInput(true, false);
        port->close();
        ASSERT_TRUE(port->open());
    }
    EXPECT_TRUE(eventually([&] { return noThreads(); }));
}

TEST_F(BackgroundIo, APortThatNobodyHoldsIsClosedAndLeavesNothingBehind)
{
    const auto othersThreads = threads().size();
    const auto othersDescriptors = openDescriptors() - 2; // the port's and what wakes its threads
    for (int i = 0; i < 50; ++i) {
        port->readDataInBackground();
        port->readDataInBackground();
        port->writeDataInBackground("never read");
        port.reset();
        port = KSSerialPort::init(line.path(), QStringLiteral("line"));
        port->setDelegate(&listener);
        ASSERT_TRUE(port->open());
        line.received();
    }
    port.reset();
    EXPECT_TRUE(eventually([&] { return threads().size() == othersThreads; }));
    EXPECT_EQ(openDescriptors(), othersDescriptors);
    EXPECT_TRUE(listener.chunks.isEmpty()) << "nobody holds the port that could want them";
}

TEST_F(BackgroundIo, NothingIsStartedForADelegateThatDoesNotAnswer)
{
    Listener deaf;
    deaf.reads = deaf.writes = false;
    port->setDelegate(&deaf);
    port->readDataInBackground();
    port->writeDataInBackground("lost");
    EXPECT_TRUE(noThreads());
    port->setDelegate(nullptr);
    port->readDataInBackground();
    EXPECT_TRUE(noThreads());
}

// Writing

TEST_F(BackgroundIo, WritesABlockAndTellsNothingIfItIsQuick)
{
    port->setSpeed(9600);
    const auto block = someBytes(3600); // an estimate of just 3 seconds
    port->writeDataInBackground(block);
    QByteArray arrived;
    ASSERT_TRUE(
        eventually([&] { return (arrived += line.received()).size() == block.size() && noThreads(); }));
    EXPECT_EQ(arrived, block);
    EXPECT_TRUE(listener.progress.isEmpty());
}

TEST_F(BackgroundIo, TellsTheProgressOfALongWrite)
{
    port->setSpeed(9600);
    const auto block = someBytes(10'000);
    port->writeDataInBackground(block);
    QByteArray arrived;
    ASSERT_TRUE(
        eventually([&] { return (arrived += line.received()).size() == block.size() && noThreads(); }));
    EXPECT_EQ(arrived, block);
    ASSERT_TRUE(eventually([&] { return listener.progress.size() >= 2; }));
    EXPECT_EQ(listener.progress.first(), (std::pair<qint64, qint64>(0, 10'000)));
    EXPECT_EQ(listener.progress.last(), (std::pair<qint64, qint64>(10'000, 10'000)));
    EXPECT_LE(listener.progress.size(), 4);

    port->setSpeed(0); // no estimate can be made
    port->writeDataInBackground("end");
    EXPECT_TRUE(eventually([&] { return line.received() == "end"; }));
}

TEST_F(BackgroundIo, AWriteThatNobodyTakesEndsWithTheClose)
{
    port->setSpeed(9600);
    port->writeDataInBackground(someBytes(1'000'000));
    port->writeDataInBackground(someBytes(10));
    ASSERT_TRUE(eventually([] { return isAnyThreadIn(SYS_write); }));
    port->close();
    ASSERT_TRUE(eventually([&] { return noThreads(); }));
    ASSERT_TRUE(eventually([&] { return listener.progress.size() >= 2; }));
    EXPECT_LT(listener.progress.last().first, 1'000'000) << "what was written, no more";
}

TEST_F(BackgroundIo, AStoppedWriteEndsAfterItsChunk)
{
    port->setSpeed(9600);
    port->writeDataInBackground(someBytes(1'000'000));
    ASSERT_TRUE(eventually([] { return isAnyThreadIn(SYS_write); }));
    port->stopWriteInBackground();
    qsizetype arrived = 0;
    ASSERT_TRUE(eventually([&] {
        arrived += line.received().size();
        return noThreads() && listener.progress.size() >= 2 && listener.progress.last().first == arrived;
    })) << arrived;
    EXPECT_EQ(arrived % 4096, 0);
    EXPECT_LT(arrived, 1'000'000);
}

// By a timer

TEST_F(BackgroundIo, TheTimerReadsOnceAndOnlyWhileThePortIsOpen)
{
    QStringList texts;
    QObject target;
    const auto take = [&](const QString& text) { texts += text; };
    port->waitForInput(&target, [&](const QString&) { ADD_FAILURE() << "replaced"; });
    port->waitForInput(&target, take);
    ASSERT_TRUE(line.send("gr\xfc\xdf"));
    ASSERT_TRUE(eventually([&] { return !texts.isEmpty(); }));
    EXPECT_EQ(texts, QStringList{QStringLiteral("grüß")});

    // From its own callback it may be started again, and the port may be closed.
    port->waitForInput(&target, [&](const QString& text) {
        take(text);
        port->waitForInput(&target, [&](const QString&) { ADD_FAILURE() << "closed"; });
        port->close();
    });
    ASSERT_TRUE(line.send("x"));
    ASSERT_TRUE(eventually([&] { return texts.size() == 2; }));
    ASSERT_TRUE(port->open());
    port->waitForInput(std::make_unique<QObject>().get(),
                       [&](const QString&) { ADD_FAILURE() << "has gone"; });
    ASSERT_TRUE(line.send("y"));
    EXPECT_TRUE(eventually([&] { return port->checkRead() == 1; }));
}

} // namespace
} // namespace ridelog
