// The program itself, as a desktop starts it.

#include "simulator/RideGenerator.h"
#include "tests/support/Events.h"
#include "tests/support/TemporaryFolder.h"

#include <QProcess>
#include <QProcessEnvironment>

#include <gtest/gtest.h>
#include <memory>

namespace ridelog {
namespace {

/// Starts of the program with settings and a home folder of their own.
class Program : public testing::Test, protected TemporaryFolder {
protected:
    std::unique_ptr<QProcess> start(const QStringList& words)
    {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        for (const auto* folder : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"})
            environment.insert(QString::fromLatin1(folder), path(""));
        auto process = std::make_unique<QProcess>();
        process->setProcessEnvironment(environment);
        process->start(QStringLiteral(RIDELOG_APP), words);
        return process;
    }
    /// Whether its log says this sooner or later.
    bool says(QProcess& process, const QByteArray& line)
    {
        return eventually([&] {
            log += process.readAllStandardError();
            return log.contains(line);
        });
    }
    QString dump(const char* name, std::uint32_t seed)
    {
        return write(name, RideGenerator{.seed = seed, .tours = 5}.dump());
    }

    QByteArray log; ///< of the one that is listened to
};

TEST_F(Program, ASecondStartHandsItsFilesToTheFirst)
{
    const auto first = start({dump("a.odo", 1)});
    ASSERT_TRUE(says(*first, "5 tours added")) << log.constData();
    log.clear();
    const auto second = start({dump("b.odo", 2)});
    ASSERT_TRUE(second->waitForFinished());
    EXPECT_EQ(second->exitCode(), 0);
    EXPECT_TRUE(says(*first, "5 tours added")) << log.constData();
    first->kill();
    EXPECT_TRUE(first->waitForFinished());
}

TEST_F(Program, WrongWordsEndItAtOnce)
{
    const auto program = start({QStringLiteral("--log"), QStringLiteral("loud")});
    ASSERT_TRUE(program->waitForFinished());
    EXPECT_EQ(program->exitCode(), 2);
    EXPECT_EQ(program->readAllStandardError(), "ridelog: --log takes none, errors or trace\n");
}

} // namespace
} // namespace ridelog
