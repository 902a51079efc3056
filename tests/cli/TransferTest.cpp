// The whole road: the simulated device at one end of the line, the program at the other.

#include "simulator/DeviceSimulator.h"
#include "simulator/RideGenerator.h"
#include "tests/cli/CommandLine.h"
#include "tests/support/Events.h"

#include <gtest/gtest.h>

namespace ridelog {
namespace {

class Transfer : public CommandLine {
protected:
    void SetUp() override { dump = RideGenerator{.tours = 4}.dump(); }

    /// What becomes of a transfer from a device with this fault.
    Outcome receive(std::optional<Fault> fault, const QStringList& more = {})
    {
        DeviceSimulator device(
            {.dump = dump, .speed = speed, .fault = fault, .lateBy = std::chrono::milliseconds(50)});
        const auto failure = device.start();
        EXPECT_FALSE(failure) << qPrintable(*failure);
        port = device.path();
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("HOME"), path());
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(RIDELOG_CLI),
                      QStringList{QStringLiteral("receive"), QStringLiteral("--port"), port,
                                  QStringLiteral("-o"), path("got.odo"), QStringLiteral("--into"),
                                  path("got.ridelog")} +
                          more);
        EXPECT_TRUE(eventually([&] { return process.state() == QProcess::NotRunning; }));
        return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
    }
    QByteArray reason(const Outcome& outcome) const
    {
        EXPECT_EQ(outcome.status, 3);
        const auto begin = QStringLiteral("ridelog-cli: %1: ").arg(port).toUtf8();
        EXPECT_TRUE(outcome.err.startsWith(begin) && outcome.err.endsWith(".tmp\n") &&
                    outcome.err.count('\n') == 1)
            << outcome.err.constData();
        return outcome.err.mid(begin.size());
    }

    double speed = 0;
    QByteArray dump;
    QString port;
};

TEST_F(Transfer, BringsTheToursHome)
{
    struct Case {
        std::optional<Fault> fault;
        const char* merged;
    };
    const Case cases[]{
        {std::nullopt, "4 tours added, 0 already there\n"},
        {Fault::late, "0 tours added, 4 already there\n"},
        {Fault::trickle, "0 tours added, 4 already there\n"},
        {Fault::twice, "0 tours added, 4 already there\n"},
    };
    for (const auto& [fault, merged] : cases) {
        const auto outcome = receive(fault);
        EXPECT_EQ(outcome.status, 0) << outcome.err.constData();
        EXPECT_TRUE(outcome.out.endsWith(merged)) << outcome.out.constData();
        // A device that starts again may have its next bytes in the last chunk.
        EXPECT_TRUE(fault == Fault::twice ? (dump + dump).startsWith(read("got.odo"))
                                          : read("got.odo") == dump);
    }
    const auto longer = receive(Fault::longDump);
    EXPECT_EQ(longer.status, 0) << longer.err.constData();
    EXPECT_TRUE(read("got.odo").startsWith(dump));
}

TEST_F(Transfer, KeepsWhatArrivedFromADeviceThatDoesNotFinish)
{
    const QStringList impatient{QStringLiteral("--timeout"), QStringLiteral("0.3")};
    const QByteArray half = "40,965 of 81,930 bytes";
    EXPECT_TRUE(
        reason(receive(Fault::silence, impatient)).startsWith("the device fell silent after " + half));
    EXPECT_TRUE(read("odoData.odo.tmp") == dump.first(40'965));
    EXPECT_TRUE(
        reason(receive(Fault::shortDump, impatient)).startsWith("the device fell silent after 81,929 of"));
    EXPECT_TRUE(read("odoData.odo.tmp") == dump.first(81'929));
    // A hang-up takes what was not read yet with it.
    speed = 300;
    EXPECT_TRUE(reason(receive(Fault::cut)).startsWith("the port was closed or unplugged after "));
    EXPECT_TRUE(dump.startsWith(read("odoData.odo.tmp")));
    speed = 0;
    EXPECT_TRUE(
        reason(receive(Fault::garbage)).startsWith("complete, but not a raw dump: it does not begin"));
    EXPECT_GE(read("odoData.odo.tmp").size(), dump.size());
    EXPECT_EQ(names(), QStringList{QStringLiteral("odoData.odo.tmp")});
}

TEST_F(Transfer, ADumpWithNoiseInsideIsKeptAndDecodedAsFarAsItGoes)
{
    const auto outcome = receive(Fault::noise);
    EXPECT_EQ(outcome.status, 0) << outcome.err.constData();
    const auto got = read("got.odo");
    ASSERT_EQ(got.size(), dump.size());
    EXPECT_TRUE(got.startsWith("AFRO"));
    EXPECT_TRUE(got != dump);
}

} // namespace
} // namespace ridelog
