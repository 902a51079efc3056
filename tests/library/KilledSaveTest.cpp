// A process is killed while it saves, again and again: what it leaves is one of two whole documents.

#include "tests/support/Documents.h"
#include "tests/support/TemporaryFolder.h"

#include <QDeadlineTimer>
#include <QElapsedTimer>

#include <chrono>
#include <csignal>
#include <gtest/gtest.h>
#include <iostream>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

namespace ridelog {
namespace {

constexpr int kills = 200;
constexpr unsigned seed = 20070310;

/// What a process says of its saves; they come in turns.
constexpr char begun = 'b';
constexpr char done = 'd';

const QString shortTitle = QStringLiteral("Home");
const QString longTitle = QString(10'000, u'!');

[[noreturn]] void saveForEver(const QString& path, int report)
{
    MyDocument document;
    const auto say = [report](char word) { return ::write(report, &word, 1) == 1; };
    bool works = !document.open(path) && !document.isReadOnly();
    while (works) {
        const auto& tour = document.toursArray().front();
        tour->setTitle(tour->title() == shortTitle ? longTitle : shortTitle);
        works = say(begun) && !document.save() && say(done);
    }
    ::_exit(EXIT_FAILURE);
}

/// Kills a process so long after the beginning of its first save. Answers what it has said.
QByteArray wordsOfKilled(const QString& path, std::chrono::nanoseconds after)
{
    int ends[2];
    EXPECT_EQ(::pipe(ends), 0);
    const auto process = ::fork();
    if (process == 0) {
        ::close(ends[0]);
        saveForEver(path, ends[1]);
    }
    ::close(ends[1]);
    QByteArray words(1, '\0');
    EXPECT_EQ(::read(ends[0], words.data(), 1), 1) << "it cannot open or lock the document";
    const QDeadlineTimer moment(after, Qt::PreciseTimer);
    while (!moment.hasExpired()) {
    }
    ::kill(process, SIGKILL);
    int status = 0;
    EXPECT_EQ(::waitpid(process, &status, 0), process);
    EXPECT_TRUE(WIFSIGNALED(status)) << "it cannot save";
    QFile rest;
    EXPECT_TRUE(rest.open(ends[0], QIODevice::ReadOnly, QFile::AutoCloseHandle));
    return words + rest.readAll();
}

TEST(KilledSave, LeavesOneOfTwoWholeDocuments)
{
    const TemporaryFolder folder(memoryFolder());
    const auto path = folder.path("tours.ridelog");
    QByteArray contents[2];
    std::chrono::nanoseconds longest{};
    {
        MyDocument document;
        document.addNewToursFromArray(rides(1, 24));
        for (auto& bytes : contents) {
            document.toursArray().front()->setTitle(contents[0].isEmpty() ? longTitle : shortTitle);
            bytes = stored(document);
        }
        QElapsedTimer clock;
        clock.start();
        ASSERT_EQ(document.saveAs(path), std::nullopt);
        longest = 2 * std::chrono::nanoseconds(clock.nsecsElapsed());
    }
    const auto isWhole = [&](const char* name) {
        const auto bytes = folder.read(name);
        return bytes == contents[0] || bytes == contents[1];
    };

    std::mt19937 random(seed);
    std::uniform_int_distribution<qint64> moment(0, longest.count());
    int inside = 0;
    int leftovers = 0;
    qsizetype saves = 0;
    for (int kill = 0; kill < kills; ++kill) {
        const auto words = wordsOfKilled(path, std::chrono::nanoseconds(moment(random)));
        inside += words.endsWith(begun) ? 1 : 0;
        saves += words.count(done);
        leftovers += folder.names().contains(QStringLiteral(".tours.ridelog.saving")) ? 1 : 0;
        ASSERT_TRUE(isWhole("tours.ridelog")) << "kill " << kill;
        ASSERT_TRUE(isWhole("tours.ridelog~") || !QFile::exists(path + u'~')) << "kill " << kill;
    }
    std::cout << "Seed " << seed << ": " << inside << " of " << kills << " kills inside a save, " << saves
              << " saves done between them; " << leftovers << " left a new file behind\n";
    EXPECT_GT(inside, kills / 2);
    {
        MyDocument document;
        EXPECT_EQ(document.open(path), std::nullopt);
        EXPECT_FALSE(document.isReadOnly());
        EXPECT_EQ(document.save(), std::nullopt);
    }
    EXPECT_EQ(folder.names(),
              (QStringList{QStringLiteral("tours.ridelog"), QStringLiteral("tours.ridelog~")}));
}

} // namespace
} // namespace ridelog
