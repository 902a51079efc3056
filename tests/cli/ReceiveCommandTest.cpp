#include "simulator/RideGenerator.h"
#include "tests/cli/CommandLine.h"
#include "tests/support/SerialLine.h"

#include <QJsonArray>

#include <csignal>

namespace ridelog {
namespace {

/// The program while it waits at a serial line, with a home folder of its own.
class ReceiveCommand : public CommandLine {
protected:
    void SetUp() override
    {
        dump = RideGenerator{.tours = 3}.dump();
        environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("HOME"), path());
    }

    void start(const QStringList& words)
    {
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(RIDELOG_CLI),
                      QStringList{QStringLiteral("receive"), QStringLiteral("--port"), line.path()} + words);
        ASSERT_TRUE(process.waitForStarted());
    }
    /// Until the line is set up for the device.
    void startListening(const QStringList& words)
    {
        line.forget();
        start(words);
        ASSERT_TRUE(eventually([this] {
            const auto set = line.settings();
            return cfgetospeed(&set) == B9600;
        }));
    }
    Outcome finish()
    {
        EXPECT_TRUE(eventually([this] { return process.state() == QProcess::NotRunning; }));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
    }
    QByteArray error(const QString& text) const
    {
        return QStringLiteral("ridelog-cli: %1: %2\n").arg(line.path(), text).toUtf8();
    }
    QString kept() const { return path("odoData.odo.tmp"); }

    SerialLine line;
    QByteArray dump;
    QProcess process;
    QProcessEnvironment environment;
};

TEST_F(ReceiveCommand, WritesTheDumpAsItCameAndMergesIt)
{
    startListening({QStringLiteral("-o"), path("my.odo"), QStringLiteral("--into"), path("my.ridelog")});
    ASSERT_TRUE(line.send(dump));
    auto outcome = finish();
    EXPECT_EQ(outcome.status, 0) << outcome.err.constData();
    EXPECT_EQ(outcome.out, QStringLiteral("%1: 81,930 bytes received\n%2: 3 tours added, 0 already there\n")
                               .arg(path("my.odo"), path("my.ridelog"))
                               .toUtf8());
    EXPECT_TRUE(outcome.err.isEmpty()) << "no progress where there is no terminal";
    EXPECT_EQ(read("my.odo"), dump);

    // Again, and without a name for the dump
    startListening({QStringLiteral("--into"), path("my.ridelog"), QStringLiteral("--two-stop-bits")});
    EXPECT_TRUE((line.settings().c_cflag & CSTOPB) != 0);
    ASSERT_TRUE(line.send(dump));
    outcome = finish();
    EXPECT_EQ(outcome.status, 0);
    EXPECT_TRUE(outcome.out.endsWith("my.ridelog: 0 tours added, 3 already there\n"));
    EXPECT_EQ(read("odoData.odo"), dump);
    EXPECT_FALSE(QFile::exists(kept()));
}

TEST_F(ReceiveCommand, KeepsWhatArrivedOfATransferThatDoesNotComplete)
{
    const auto part = dump.first(40'960);
    const QStringList words{QStringLiteral("-o"), write("my.odo", "from before"), QStringLiteral("--into"),
                            path("my.ridelog")};
    const auto inKept = QStringLiteral("; what arrived is in ") + kept();

    startListening(words + QStringList{QStringLiteral("--timeout"), QStringLiteral("0.3")});
    ASSERT_TRUE(line.send(part));
    auto outcome = finish();
    EXPECT_EQ(outcome.status, 3);
    EXPECT_EQ(outcome.err,
              error(QStringLiteral("the device fell silent after 40,960 of 81,930 bytes: nothing for 0.3 s") +
                    inKept));
    EXPECT_EQ(read("odoData.odo.tmp"), part);

    const auto garbage = QByteArray(300, '#') + dump;
    startListening(words);
    ASSERT_TRUE(line.send(garbage.first(dump.size())));
    outcome = finish();
    EXPECT_EQ(outcome.status, 3);
    EXPECT_EQ(
        outcome.err,
        error(QStringLiteral("complete, but not a raw dump: it does not begin with \"AFRO\"") + inKept));
    EXPECT_EQ(read("odoData.odo.tmp"), garbage.first(dump.size()));

    EXPECT_EQ(read("my.odo"), QByteArray("from before"));
    EXPECT_FALSE(QFile::exists(path("my.ridelog")));
}

/// With a terminal, which tells when the program has taken what was sent.
class ReceiveOnTerminal : public ReceiveCommand {
protected:
    void receiveHalf()
    {
        process.setStandardErrorFile(terminal.path());
        startListening({QStringLiteral("-o"), path("my.odo")});
        ASSERT_TRUE(line.send(dump.first(40'965)));
        ASSERT_TRUE(eventually([this] {
            return (shown += terminal.received()).contains("] 50 %  40,965 of 81,930 bytes, ");
        })) << shown.constData();
    }
    void expectKept(const char* reason)
    {
        EXPECT_EQ(finish().status, 3);
        const auto said = error(QStringLiteral("%1 after 40,965 of 81,930 bytes; what arrived is in %2")
                                    .arg(QString::fromLatin1(reason), kept()));
        EXPECT_TRUE(eventually([&] { return (shown += terminal.received()).endsWith("\x1b[K" + said); }))
            << shown.constData();
        EXPECT_TRUE(read("odoData.odo.tmp") == dump.first(40'965));
        QFile::remove(kept());
        shown.clear();
    }

    SerialLine terminal;
    QByteArray shown;
};

TEST_F(ReceiveOnTerminal, ShowsHowFarItIs)
{
    receiveHalf();
    EXPECT_TRUE(shown.startsWith("\rWaiting for the device at /dev/pts/"));
    EXPECT_TRUE(shown.contains("[############............]"));
    ASSERT_TRUE(line.send(dump.sliced(40'965)));
    EXPECT_EQ(finish().status, 0);
    EXPECT_TRUE(read("my.odo") == dump);
}

TEST_F(ReceiveOnTerminal, KeepsWhatArrivedWhenItIsStopped)
{
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        receiveHalf();
        // A terminal that is closed may send it twice.
        ::kill(static_cast<pid_t>(process.processId()), signal);
        ::kill(static_cast<pid_t>(process.processId()), signal);
        expectKept("stopped");
    }
    receiveHalf();
    line.hangUp();
    expectKept("the port was closed or unplugged");
}

TEST_F(ReceiveCommand, KeepsNothingWhereNothingArrived)
{
    startListening(
        {QStringLiteral("-o"), path("my.odo"), QStringLiteral("--timeout"), QStringLiteral("0.1")});
    const auto outcome = finish();
    EXPECT_EQ(outcome.status, 3);
    EXPECT_EQ(outcome.err, error(QStringLiteral("nothing arrived within 0.1 s")));
    EXPECT_EQ(names(), QStringList());
}

TEST_F(ReceiveCommand, SaysBeforeTheTransferWhatWouldPreventIt)
{
    const auto refused = [&](const QString& words, int status, const char* reason) {
        const auto outcome = run(QStringLiteral("receive ") + words);
        EXPECT_EQ(outcome.status, status) << qPrintable(words);
        EXPECT_TRUE(outcome.err.contains(reason)) << outcome.err.constData();
    };
    const auto there = QStringLiteral("--port ") + line.path();
    refused(QStringLiteral("-o x"), 2, "--port is missing");
    refused(there + QStringLiteral(" --into="), 2, "-o and --into take the name of a file");
    refused(there + QStringLiteral(" -o x --timeout 0"), 2, "--timeout takes seconds");
    refused(there + QStringLiteral(" -o x --timeout soon"), 2, "--timeout takes seconds");
    refused(there + QStringLiteral(" -o ") + path(), 3, "it is a folder");
    refused(there + QStringLiteral(" -o ") + path("none/x"), 3, "there is no folder of this name");
    refused(there + QStringLiteral(" --into ") + write("x", "no document"), 1, "/x: ");
    const auto output = QStringLiteral(" -o ") + path("y");
    refused(there + output + QStringLiteral(" --into ") + path("y"), 1, "cannot be one file");
    const auto document = path("z.ridelog");
    ASSERT_EQ(run(QStringLiteral("import %1 --into %2").arg(write("d.odo", dump), document)).status, 0);
    const auto before = read("z.ridelog");
    refused(there + QStringLiteral(" -o ") + document, 1, "a document, which a raw dump would replace");
    EXPECT_EQ(run(QStringLiteral("make-dump -o ") + document).status, 1);
    EXPECT_EQ(read("z.ridelog"), before);
    refused(QStringLiteral("--port /dev/no-such-port") + output, 3,
            "/dev/no-such-port: there is no such port");
    refused(QStringLiteral("--port ") + path("x") + output, 3, "not a serial port");
    refused(QStringLiteral("--port ") + path() + output, 3, "a folder, not a serial port");
    startListening({QStringLiteral("-o"), path("y")});
    refused(there + output, 3, "in use by another program");
    process.kill();
    process.waitForFinished();
    EXPECT_EQ(names(),
              (QStringList{QStringLiteral("d.odo"), QStringLiteral("x"), QStringLiteral("z.ridelog")}));
}

TEST_F(CommandLine, PortsAreThoseOfTheMachineAndThoseThatAreAdded)
{
    qputenv("RIDELOG_PORTS", "/somewhere/line:/elsewhere");
    const auto ports = run(QStringLiteral("ports --json")).json()[u"ports"].toArray();
    EXPECT_TRUE(run(QStringLiteral("ports")).out.contains("/somewhere/line\n"));
    qunsetenv("RIDELOG_PORTS");
    ASSERT_GE(ports.size(), 2);
    const auto added = ports[ports.size() - 2].toObject();
    EXPECT_EQ(added[u"name"].toString(), QStringLiteral("line"));
    EXPECT_EQ(added[u"path"].toString(), QStringLiteral("/somewhere/line"));
    EXPECT_TRUE(added[u"product"].isNull());
}

} // namespace
} // namespace ridelog
