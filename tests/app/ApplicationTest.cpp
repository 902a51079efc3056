// The program itself, as a desktop starts it.

#include "library/DefaultsKeys.h"
#include "library/DocumentRecovery.h"
#include "platform/Defaults.h"
#include "simulator/RideGenerator.h"
#include "tests/support/Events.h"
#include "tests/support/TemporaryFolder.h"

#include <QDirIterator>
#include <QProcess>
#include <QProcessEnvironment>
#include <QUrl>

#include <algorithm>
#include <csignal>
#include <gtest/gtest.h>
#include <memory>

namespace ridelog {
namespace {

struct Program : QProcess {
    /// Whether its log says sooner or later that so many dumps were imported.
    bool imports(int dumps)
    {
        return eventually([&] {
            log += readAllStandardError();
            return log.count("5 tours added") >= dumps;
        });
    }
    void send(int signal) const { ::kill(static_cast<pid_t>(processId()), signal); }
    bool runs() const { return state() != NotRunning; }
    /// What the system says of it.
    QString systemPath(QLatin1String name) const
    {
        return QStringLiteral("/proc/%1/").arg(processId()) + name;
    }

    QByteArray log;
};

/// Starts of the program with settings and a home folder of their own.
class ApplicationTest : public testing::Test, protected TemporaryFolder {
protected:
    std::unique_ptr<Program> start(const QStringList& words)
    {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        for (const auto* folder : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"})
            environment.insert(QString::fromLatin1(folder), path(""));
        environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), runtimeFolder);
        auto program = std::make_unique<Program>();
        program->setProcessEnvironment(environment);
        program->setWorkingDirectory(path(""));
        program->start(QStringLiteral(RIDELOG_APP), words);
        return program;
    }
    QString dump(const char* name, std::uint32_t seed)
    {
        return write(name, RideGenerator{.seed = seed, .tours = 5}.dump());
    }
    std::vector<Leftover> leftovers() const { return DocumentRecovery(recoveryFolder).leftovers(); }

    /// Longer than the name of a socket may be.
    const QString runtimeFolder = path("runtime").leftJustified(150, u'-');
    const QString recoveryFolder = path("ridelog/recovery");
};

TEST_F(ApplicationTest, OfTwoStartsAtOnceOneTakesTheFilesOfBoth)
{
    const QStringList dumps{dump("a.odo", 1), dump("b.odo", 2)};
    for (int round = 0; round < 5; ++round) {
        // What the killed program of the round before has left is in the way of nobody.
        QDir(recoveryFolder).removeRecursively();
        const auto one = start({dumps[0]});
        const auto other = start({dumps[1]});
        ASSERT_TRUE(eventually([&] { return !one->runs() || !other->runs(); }));
        auto& first = one->runs() ? *one : *other;
        const auto& second = one->runs() ? *other : *one;
        EXPECT_EQ(second.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(second.exitCode(), 0);
        EXPECT_TRUE(first.imports(2)) << first.log.constData();
        EXPECT_TRUE(first.runs());
        first.kill();
        EXPECT_TRUE(first.waitForFinished());
    }
}

TEST_F(ApplicationTest, ASecondStartHandsOverWhatItIsAskedFor)
{
    const auto first = start({QStringLiteral("missing"), dump("a.odo", 1)});
    ASSERT_TRUE(first->imports(1)) << first->log.constData();
    QStringList words{QStringLiteral("--simulated-device"), QStringLiteral("--update-url"), QString()};
    for (int missing = 0; missing < 1000; ++missing)
        words << QString(200, u'ü') + QString::number(missing);
    dump("two\nlines.odo", 2);
    words << QStringLiteral("two\nlines.odo");
    const auto second = start(words);
    ASSERT_TRUE(second->waitForFinished());
    EXPECT_EQ(second->exitCode(), 0);
    EXPECT_EQ(second->readAllStandardError(), "ridelog: --update-url was not heeded: ridelog runs already\n");
    EXPECT_TRUE(first->imports(2)) << first->log.constData();
    const auto files = QDir(first->systemPath(QLatin1String("fd"))).entryInfoList(QDir::Files | QDir::System);
    EXPECT_TRUE(std::ranges::any_of(files, [](const auto& file) {
        return file.symLinkTarget().endsWith(QStringLiteral("/ptmx"));
    })) << "no device is plugged in";
    first->kill();
    EXPECT_TRUE(first->waitForFinished());
}

TEST_F(ApplicationTest, TakesAddressesOfFiles)
{
    const auto address = QUrl::fromLocalFile(dump("100 % and more.odo", 1)).toEncoded();
    ASSERT_TRUE(address.contains("%20") && address.contains("%25"));
    const auto first = start({QString::fromLatin1(address)});
    EXPECT_TRUE(first->imports(1)) << first->log.constData();
    const auto second = start({QUrl::fromLocalFile(dump("b c.odo", 2)).toString()});
    ASSERT_TRUE(second->waitForFinished());
    EXPECT_TRUE(first->imports(2)) << first->log.constData();
    first->kill();
    EXPECT_TRUE(first->waitForFinished());
}

TEST_F(ApplicationTest, AStoppedFirstProgramStaysTheFirst)
{
    const auto first = start({dump("a.odo", 1)});
    ASSERT_TRUE(first->imports(1)) << first->log.constData();
    first->send(SIGSTOP);
    const auto second = start({dump("b.odo", 2)});
    EXPECT_FALSE(second->waitForFinished(1000)) << "it does not wait";
    first->send(SIGCONT);
    ASSERT_TRUE(second->waitForFinished());
    EXPECT_EQ(second->exitCode(), 0);
    EXPECT_TRUE(first->imports(2)) << first->log.constData();
    EXPECT_EQ(second->readAllStandardError(), "");
    first->kill();
    EXPECT_TRUE(first->waitForFinished());
}

TEST_F(ApplicationTest, WhoeverEndsItNothingIsLost)
{
    const auto ended = start({dump("a.odo", 1)});
    ASSERT_TRUE(ended->imports(1)) << ended->log.constData();
    ended->terminate();
    ASSERT_TRUE(ended->waitForFinished());
    EXPECT_EQ(ended->exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(ended->exitCode(), 0);
    ASSERT_EQ(leftovers().size(), 1U);
    EXPECT_EQ(leftovers()[0].tours, 5);
    EXPECT_TRUE(Defaults(path("ridelog/ridelog.ini")).contains(DefaultsKeys::mainWindowFrame));
    EXPECT_EQ(DocumentRecovery(recoveryFolder).discard(leftovers()[0]), std::nullopt);

    const auto killed = start({dump("b.odo", 2)});
    ASSERT_TRUE(killed->imports(1)) << killed->log.constData();
    const auto isKept = [this] {
        return QDirIterator(recoveryFolder, {QStringLiteral("recovery.json")}, QDir::Files,
                            QDirIterator::Subdirectories)
            .hasNext();
    };
    ASSERT_TRUE(eventually(isKept));
    killed->kill();
    ASSERT_TRUE(killed->waitForFinished());
    ASSERT_EQ(leftovers().size(), 1U);
    EXPECT_EQ(leftovers()[0].tours, 5);

    // The next start asks about it. One that gets no answer can be ended as well, and asks again.
    const auto asking = start({});
    const auto takesSignals = [&] {
        QFile status(asking->systemPath(QLatin1String("status")));
        const auto lines = status.open(QIODevice::ReadOnly) ? status.readAll().split('\n') : QByteArrayList();
        return std::ranges::any_of(lines, [](const auto& line) {
            return line.startsWith("SigCgt:") &&
                   line.mid(7).trimmed().toULongLong(nullptr, 16) & 1U << (SIGTERM - 1);
        });
    };
    ASSERT_TRUE(eventually(takesSignals));
    asking->terminate();
    ASSERT_TRUE(asking->waitForFinished());
    EXPECT_EQ(asking->exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(asking->exitCode(), 0);
    EXPECT_EQ(leftovers().size(), 1U);
}

TEST_F(ApplicationTest, WrongWordsEndItAtOnce)
{
    const auto program = start({QStringLiteral("--log"), QStringLiteral("loud")});
    ASSERT_TRUE(program->waitForFinished());
    EXPECT_EQ(program->exitCode(), 2);
    EXPECT_EQ(program->readAllStandardError(), "ridelog: --log takes none, errors or trace\n");
}

} // namespace
} // namespace ridelog
