// The cycle computer on a pseudo-terminal as a shell sees it.

#include "simulator/RideGenerator.h"
#include "tests/cli/CommandLine.h"

#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace ridelog {
namespace {

constexpr int limit = 20'000; // ms

/// The command while it runs.
class Simulation : public QProcess {
public:
    explicit Simulation(const QStringList& options)
    {
        // A test that runs in the background must not keep Ctrl-C from it.
        setChildProcessModifier([] {
            for (const int signal : {SIGINT, SIGTERM, SIGHUP})
                ::signal(signal, SIG_DFL);
        });
        start(QStringLiteral(RIDELOG_CLI),
              QStringList{QStringLiteral("simulate"), QStringLiteral("--speed=0")} + options);
    }

    QString announcedPath()
    {
        while (!canReadLine() && waitForReadyRead(limit)) {
        }
        return QString::fromUtf8(readLine()).trimmed();
    }
    /// The exit status after the signal, −1 if the signal killed it.
    int statusAfter(int signal)
    {
        ::kill(static_cast<pid_t>(processId()), signal);
        return waitForFinished(limit) && exitStatus() == NormalExit ? exitCode() : -1;
    }
};

/// What comes from a port that is opened, at most so many bytes.
QByteArray readPort(const QString& path, qsizetype most)
{
    pollfd port{.fd = ::open(qPrintable(path), O_RDONLY | O_NOCTTY), .events = POLLIN, .revents = 0};
    EXPECT_GE(port.fd, 0) << qPrintable(path);
    QByteArray bytes;
    char chunk[4096];
    while (bytes.size() < most && ::poll(&port, 1, limit) > 0) {
        const auto size =
            ::read(port.fd, chunk, std::min(sizeof(chunk), static_cast<std::size_t>(most - bytes.size())));
        if (size <= 0)
            break;
        bytes.append(chunk, size);
    }
    ::close(port.fd);
    return bytes;
}

using SimulateCommand = CommandLine;

TEST_F(SimulateCommand, SendsADumpAtEachOpeningUntilItIsStopped)
{
    const auto link = path("bike");
    const auto dump = RideGenerator().dump();
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        Simulation simulation({QStringLiteral("--link"), link});
        EXPECT_EQ(simulation.announcedPath(), link);
        EXPECT_TRUE(readPort(link, dump.size()) == dump);
        EXPECT_TRUE(readPort(link, 100) == dump.left(100));
        EXPECT_EQ(simulation.statusAfter(signal), 0);
        EXPECT_EQ(names(), QStringList());
        EXPECT_TRUE(simulation.readAllStandardError().startsWith(
            "opened\nsent 81,930 bytes\nclosed after 81,930 bytes\nopened\n"));
    }
}

TEST_F(SimulateCommand, SendsAnyFileAndAnnouncesAnotherPort)
{
    Simulation simulation(
        {QStringLiteral("--dump"), write("odd.odo", "no dump"), QStringLiteral("--fault=cut")});
    const auto port = simulation.announcedPath();
    EXPECT_TRUE(QByteArray("no ").startsWith(readPort(port, 7)));
    const auto nextPort = simulation.announcedPath();
    EXPECT_TRUE(nextPort.startsWith(u'/') && nextPort != port) << qPrintable(nextPort);
    EXPECT_EQ(simulation.statusAfter(SIGTERM), 0);
}

TEST_F(SimulateCommand, SaysWhyThereIsNoDevice)
{
    struct Case {
        QStringList words;
        int status;
        const char* reason;
    };
    const auto file = write("tour.ridelog", "a tour");
    const auto option = [](const char* name, const QString& value) {
        return QStringList{QString::fromLatin1(name), value};
    };
    const Case cases[]{
        {option("--dump", path("missing")), 1, "missing: No such file or directory"},
        {option("--dump", path()), 1, "it is a folder"},
        {option("--dump", write("empty", {})), 1, "it is empty"},
        {option("--dump", write("large", QByteArray(1024 * 1024 + 1, 'F'))), 1, "it is too large"},
        {option("--speed", QStringLiteral("-1")), 2, "--speed takes a number from 0"},
        {option("--speed", QStringLiteral("inf")), 2, "--speed takes a number from 0"},
        {option("--fault", QStringLiteral("rust")), 2, "--fault takes silence, cut, "},
        {option("--link", QString()), 2, "--link takes"},
        {option("--link", file), 3, "something else has that name"},
    };
    for (const auto& [words, status, reason] : cases) {
        const auto outcome = run(QStringLiteral("simulate"), words);
        EXPECT_EQ(outcome.status, status) << reason;
        EXPECT_EQ(outcome.out, "");
        EXPECT_EQ(outcome.err.count('\n'), 1);
        EXPECT_TRUE(outcome.err.contains(reason)) << outcome.err.toStdString();
    }
    EXPECT_EQ(read("tour.ridelog"), "a tour");

    QProcess full;
    full.setStandardOutputFile(QStringLiteral("/dev/full"));
    full.start(QStringLiteral(RIDELOG_CLI), {QStringLiteral("simulate")});
    EXPECT_TRUE(full.waitForFinished(limit));
    EXPECT_EQ(full.exitCode(), 3);
}

} // namespace
} // namespace ridelog
