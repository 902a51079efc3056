#include "library/DocumentRecovery.h"

#include "library/AppController.h"
#include "platform/Defaults.h"
#include "tests/support/Documents.h"
#include "tests/support/Events.h"
#include "tests/support/FailingDisk.h"
#include "tests/support/LogCapture.h"
#include "tests/support/TemporaryFolder.h"

#include <QDirIterator>
#include <QElapsedTimer>
#include <QProcess>

#include <cerrno>
#include <filesystem>
#include <future>
#include <gtest/gtest.h>
#include <iostream>
#include <map>
#include <random>

namespace ridelog {
namespace {

using std::chrono::milliseconds;

const QString shortTitle = QStringLiteral("Home");
const QString longTitle = QString(10'000, u'!');
constexpr auto childVariable = "RIDELOG_RECOVERY_CHILD";

/// Another title of its first tour, each time.
void edit(const MyDocument& document)
{
    const auto& tour = document.toursArray().front();
    tour->setTitle(tour->title() == shortTitle ? longTitle : shortTitle);
}

/// The application from its start to its end.
struct Session {
    explicit Session(const TemporaryFolder& folder, milliseconds interval = milliseconds(5),
                     const char* recovery = "recovery")
        : defaults(folder.path("ridelog.ini")), app(defaults, folder.path(recovery))
    {
        app.recovery().setInterval(interval);
        QObject::connect(&app, &AppController::documentOpened, [this] { ++opened; });
        QObject::connect(&app, &AppController::recoveryFailed,
                         [this](const Leftover&, const QString& reason) { refusals.append(reason); });
        QObject::connect(&app.recovery(), &DocumentRecovery::written,
                         [this](MyDocument* document) { ++written[document]; });
        QObject::connect(&app.recovery(), &DocumentRecovery::failed,
                         [this](MyDocument*, const QString& reason) { failures.append(reason); });
    }

    std::vector<Leftover> leftovers() { return app.recovery().leftovers(); }
    bool writes(MyDocument& document)
    {
        return eventually([&, before = written[&document]] { return written[&document] > before; });
    }

    Defaults defaults;
    AppController app;
    int opened = 0;
    QStringList refusals;
    QStringList failures;
    std::map<MyDocument*, int> written;
};

class DocumentRecoveryTest : public testing::Test {
protected:
    DocumentRecoveryTest()
    {
        MyDocument document;
        fill(document);
        EXPECT_EQ(document.saveAs(path), std::nullopt);
    }

    /// Ends a session that has changed the document, so that the next finds what it kept.
    QByteArray leave(const QString& file)
    {
        Session session(folder);
        auto& document = file.isEmpty() ? session.app.newDocument() : *session.app.openDocument(file);
        if (file.isEmpty())
            document.addNewToursFromArray(rides(1, 3));
        edit(document);
        return stored(document);
    }

    /// What would be found had the machine stopped now.
    std::vector<Leftover> afterCrash()
    {
        namespace fs = std::filesystem;
        const fs::path crashed = folder.path("crashed").toStdString();
        fs::remove_all(crashed);
        fs::copy(folder.path("recovery").toStdString(), crashed, fs::copy_options::recursive);
        return DocumentRecovery(folder.path("crashed")).leftovers();
    }

    bool nothingIsKept() const
    {
        return QDir(folder.path("recovery")).isEmpty(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
    }

    TemporaryFolder folder{memoryFolder()};
    const QString path = folder.path("tours.ridelog");
};

TEST_F(DocumentRecoveryTest, ChangesAreKeptUntilTheyAreSavedOrGivenUp)
{
    Session session(folder);
    auto* document = session.app.openDocument(path);
    ASSERT_TRUE(document);
    const auto saveAs = [&] { return session.app.saveDocumentAs(*document, folder.path("other.ridelog")); };
    const std::function<void()> endings[] = {
        [&] { EXPECT_EQ(document->save(), std::nullopt); },
        [&] { EXPECT_EQ(document->revert(), std::nullopt); },
        [&] { EXPECT_TRUE(document->undoManager().undo()); },
        [&] { EXPECT_EQ(saveAs(), std::nullopt); },
        [&] { session.app.closeDocument(*document); },
    };
    for (const auto& end : endings) {
        const auto before = QDateTime::currentDateTimeUtc();
        edit(*document);
        ASSERT_TRUE(session.writes(*document));
        EXPECT_TRUE(session.leftovers().empty()) << "it is still open";
        const auto found = afterCrash();
        ASSERT_EQ(found.size(), 1U);
        EXPECT_EQ(found[0].path, document->path());
        EXPECT_EQ(found[0].fileChange, QString());
        EXPECT_EQ(found[0].tours, 1);
        EXPECT_TRUE(found[0].written >= before && found[0].written <= QDateTime::currentDateTimeUtc());
        end();
        EXPECT_TRUE(eventually([this] { return nothingIsKept(); }));
    }
}

TEST_F(DocumentRecoveryTest, OnlyTheUserMayReadIt)
{
    leave(path);
    const auto mode = [](const QString& name) {
        constexpr int ownerGroupAndOthers = 0x7077;
        return QString::number(QFileInfo(name).permissions() & ownerGroupAndOthers, 16);
    };
    QStringList modes{mode(folder.path("recovery"))};
    QDirIterator all(folder.path("recovery"), QDir::AllEntries | QDir::NoDotAndDotDot,
                     QDirIterator::Subdirectories);
    while (all.hasNext())
        modes.append(mode(all.next()));
    modes.sort();
    EXPECT_EQ(modes.join(u' '), QStringLiteral("6000 6000 7000 7000"))
        << "copy and facts, their folder, the folder of all";
}

TEST_F(DocumentRecoveryTest, OnlyWhatChangedIsWrittenAndNotTooOften)
{
    constexpr milliseconds interval(20);
    Session session(folder, interval);
    auto* quiet = session.app.openDocument(path);
    auto& busy = session.app.newDocument();
    busy.addNewToursFromArray(rides(1, 1));
    edit(*quiet);
    ASSERT_TRUE(session.writes(*quiet));
    QElapsedTimer clock;
    clock.start();
    const auto before = session.written[&busy];
    // Edits of one step, which takes several events, are changes as well.
    const UndoGroup oneStep(busy.undoManager());
    ASSERT_TRUE(eventually([&] {
        edit(busy);
        return session.written[&busy] > before + 5;
    }));
    EXPECT_LE(session.written[&busy] - before, clock.elapsed() / interval.count() + 2);
    EXPECT_EQ(session.written[quiet], 1);
}

TEST_F(DocumentRecoveryTest, ItWritesAtOnceIfTheProgramMayEnd)
{
    Session session(folder, std::chrono::hours(1));
    auto* document = session.app.openDocument(path);
    ASSERT_TRUE(document);
    edit(*document);
    session.app.recovery().writeNow();
    EXPECT_EQ(afterCrash().size(), 1U);
    EXPECT_TRUE(eventually([&] { return session.written[document] == 1; }));
}

TEST_F(DocumentRecoveryTest, WhatWasLeftOpensAsAChangedDocument)
{
    const auto onDisk = folder.read("tours.ridelog");
    const auto ofNew = leave(QString());
    for (const bool isOpen : {false, true}) {
        const auto bytes = leave(path);
        Session session(folder);
        auto* open = isOpen ? session.app.openDocument(path) : nullptr;
        const auto found = session.leftovers();
        ASSERT_EQ(found.size(), 2U);
        EXPECT_GE(found[0].written, found[1].written);
        const auto& leftover = found[found[0].path.isEmpty() ? 1 : 0];
        auto* document = session.app.recoverDocument(leftover);
        ASSERT_TRUE(document);
        EXPECT_TRUE(!isOpen || document == open);
        EXPECT_EQ(session.opened, 1);
        EXPECT_EQ(document->path(), path);
        EXPECT_EQ(session.app.recentDocuments().value(0), path);
        EXPECT_TRUE(document->isChanged());
        EXPECT_FALSE(document->isReadOnly());
        EXPECT_EQ(stored(*document), bytes);
        EXPECT_EQ(folder.read("tours.ridelog"), onDisk) << "not saved yet";
        EXPECT_EQ(session.leftovers().size(), 1U) << "it has an owner again";
        EXPECT_EQ(afterCrash().size(), 2U) << "but is still kept";
        EXPECT_NE(session.app.recovery().discard(leftover), std::nullopt);
        edit(*document);
        EXPECT_TRUE(document->undoManager().undo());
        EXPECT_TRUE(document->isChanged()) << "undo does not lead to what is in the file";
        if (isOpen) {
            EXPECT_FALSE(session.app.recoverDocument(leftover));
            EXPECT_EQ(session.refusals.size(), 1) << "a document with changes is not replaced";
            EXPECT_EQ(document->save(), std::nullopt);
            EXPECT_EQ(folder.read("tours.ridelog"), bytes);
        } else {
            session.app.closeDocument(*document);
        }
    }
    Session session(folder);
    auto* document = session.app.recoverDocument(session.leftovers().at(0));
    ASSERT_TRUE(document);
    EXPECT_EQ(stored(*document), ofNew);
    EXPECT_EQ(document->path(), QString());
    EXPECT_TRUE(document->isChanged());
    session.app.closeDocument(*document);
    EXPECT_TRUE(eventually([this] { return nothingIsKept(); }));
}

TEST_F(DocumentRecoveryTest, AFileThatWasChangedSinceIsNotOverwrittenUnasked)
{
    const auto bytes = leave(path);
    folder.write("tours.ridelog", "from a backup");
    {
        Session session(folder);
        EXPECT_EQ(session.leftovers().at(0).fileChange, QStringLiteral("its file has been changed since"));
        auto* document = session.app.recoverDocument(session.leftovers().at(0));
        ASSERT_TRUE(document);
        EXPECT_TRUE(document->fileWasChangedByOthers());
        EXPECT_NE(document->save(), std::nullopt);
        EXPECT_EQ(folder.read("tours.ridelog"), "from a backup");
        edit(*document);
        EXPECT_TRUE(session.writes(*document)) << "a second crash costs nothing either";
    }
    QFile::remove(path);
    Session session(folder);
    EXPECT_EQ(session.leftovers().at(0).fileChange, QStringLiteral("its file is gone"));
    auto* document = session.app.recoverDocument(session.leftovers().at(0));
    ASSERT_TRUE(document);
    edit(*document);
    EXPECT_EQ(document->save(), std::nullopt);
    EXPECT_EQ(folder.read("tours.ridelog"), bytes);
}

TEST_F(DocumentRecoveryTest, WhatIsDamagedIsRefusedOnceAndKept)
{
    leave(path);
    leave(QString());
    Session session(folder);
    auto found = session.leftovers();
    ASSERT_EQ(found.size(), 2U);
    ASSERT_TRUE(QFile::resize(found[0].folder + QStringLiteral("/1.ridelog"), 700));
    EXPECT_FALSE(session.app.recoverDocument(found[0]));
    EXPECT_EQ(session.refusals.size(), 1);
    QFile facts(found[1].folder + QStringLiteral("/recovery.json"));
    const auto copy = QFileInfo(found[1].folder + QStringLiteral("/1.ridelog"));
    const auto sound = facts.open(QIODevice::ReadWrite) ? facts.readAll() : QByteArray();
    EXPECT_TRUE(facts.resize(sound.size() / 2));

    Session next(folder);
    EXPECT_TRUE(next.leftovers().empty()) << "not offered again";
    found = next.app.recovery().refusedLeftovers();
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0].refusal, session.refusals[0]);
    EXPECT_TRUE(found[1].refusal.endsWith(QStringLiteral("recovery.json is damaged")));
    EXPECT_FALSE(next.app.recoverDocument(found[1]));
    EXPECT_TRUE(next.app.documents().empty());
    EXPECT_TRUE(copy.exists());
    EXPECT_EQ(next.app.recovery().discard(found[0]), std::nullopt);

    // As somebody may repair it.
    EXPECT_TRUE(facts.seek(0) && facts.write(sound) == sound.size() && facts.flush());
    EXPECT_EQ(next.leftovers().size(), 1U);
    EXPECT_TRUE(next.app.recoverDocument(found[1]));
    // What a program left that ended before it had written anything whole.
    QDir(folder.path("recovery")).mkdir(QStringLiteral("begun"));
    EXPECT_TRUE(next.leftovers().empty());
    EXPECT_FALSE(QFileInfo::exists(folder.path("recovery/begun")));
}

TEST_F(DocumentRecoveryTest, AFailingDiskCostsALogLine)
{
    Session session(folder, milliseconds(1));
    auto* document = session.app.openDocument(path);
    ASSERT_TRUE(document);
    edit(*document);
    ASSERT_TRUE(session.writes(*document));
    const LogCapture log;
    {
        FailingDisk disk(folder.path("recovery"), {});
        // Told of each writing before the next one begins.
        const QObject told;
        int call = 0;
        bool allFailed = false;
        const auto look = [&] { EXPECT_EQ(afterCrash().size(), 1U) << "call " << call; };
        QObject::connect(&session.app.recovery(), &DocumentRecovery::failed, &told, look);
        QObject::connect(&session.app.recovery(), &DocumentRecovery::written, &told, [&] {
            look();
            allFailed = !disk.failed();
            if (allFailed)
                return;
            disk.failCall(++call, ENOSPC);
            edit(*document);
        });
        disk.failCall(call, ENOSPC);
        edit(*document);
        ASSERT_TRUE(eventually([&] { return allFailed; }));
    }
    EXPECT_GT(session.failures.size(), 5);
    EXPECT_EQ(log.errors().size(), session.failures.size());
    EXPECT_EQ(afterCrash().at(0).tours, 1);
    EXPECT_EQ(document->save(), std::nullopt);
    EXPECT_TRUE(eventually([this] { return nothingIsKept(); }));

    folder.write("file", "no folder");
    Session other(folder, milliseconds(1), "file/recovery");
    auto& unkept = other.app.newDocument();
    unkept.addNewToursFromArray(rides(1, 1));
    EXPECT_TRUE(other.leftovers().empty());
    ASSERT_TRUE(eventually([&] { return !other.failures.empty(); }));
    EXPECT_TRUE(other.failures[0].contains(QStringLiteral("file/recovery: ")));

    const auto told = log.errors().size();
    {
        Session ended(folder, std::chrono::hours(1), "file/recovery");
        ended.app.newDocument().addNewToursFromArray(rides(1, 1));
    }
    EXPECT_EQ(log.errors().size(), told + 1) << "nobody hears of the end";
}

TEST_F(DocumentRecoveryTest, ASaveOvertakesTheWriting)
{
    ASSERT_TRUE(QDir().mkdir(folder.path("recovery")));
    FailingDisk disk(folder.path("recovery"), {}); // outlives the thread that writes
    Session session(folder);
    auto* document = session.app.openDocument(path);
    ASSERT_TRUE(document);
    edit(*document);
    ASSERT_TRUE(session.writes(*document));
    std::promise<void> reached;
    std::promise<void> saved;
    disk.at(FailingDisk::Call::rename, [&] {
        reached.set_value();
        saved.get_future().wait();
    });
    edit(*document);
    const auto isReached = reached.get_future();
    const auto now = std::chrono::seconds(0);
    ASSERT_TRUE(eventually([&] { return isReached.wait_for(now) == std::future_status::ready; }));
    EXPECT_EQ(document->save(), std::nullopt);
    saved.set_value();
    EXPECT_TRUE(eventually([this] { return nothingIsKept(); }));
}

[[noreturn]] void changeForEver(const QString& folder)
{
    Defaults defaults(folder + QStringLiteral("/child.ini"));
    AppController app(defaults, folder + QStringLiteral("/recovery"));
    app.recovery().setInterval(milliseconds(1));
    const auto* document = app.openDocument(folder + QStringLiteral("/tours.ridelog"));
    QObject::connect(&app.recovery(), &DocumentRecovery::written, [] { std::cout << 'w' << std::flush; });
    for (;;) {
        edit(*document);
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

TEST_F(DocumentRecoveryTest, AKilledProgramLeavesAWholeCopy)
{
    // The process that is killed is this test as well.
    if (qEnvironmentVariableIsSet(childVariable))
        changeForEver(qEnvironmentVariable(childVariable));

    constexpr int kills = 20;
    constexpr unsigned seed = 20070310;
    QByteArray contents[2];
    {
        MyDocument document;
        document.addNewToursFromArray(rides(1, 24));
        for (auto& bytes : contents) {
            edit(document);
            bytes = stored(document);
        }
        ASSERT_EQ(document.saveAs(path), std::nullopt);
    }
    std::mt19937 random(seed);
    std::uniform_int_distribution<int> moment(0, 20);
    for (int kill = 0; kill < kills; ++kill) {
        QProcess child;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QString::fromLatin1(childVariable), folder.path());
        child.setProcessEnvironment(environment);
        child.start(QCoreApplication::applicationFilePath(),
                    {QStringLiteral("--gtest_filter=DocumentRecoveryTest.AKilledProgramLeavesAWholeCopy")});
        Session session(folder);
        ASSERT_TRUE(eventually([&] { return child.readAllStandardOutput().endsWith('w'); }));
        EXPECT_TRUE(session.leftovers().empty()) << "it is still running";
        child.waitForFinished(moment(random));
        child.kill();
        ASSERT_TRUE(child.waitForFinished());
        ASSERT_EQ(child.exitStatus(), QProcess::CrashExit);
        ASSERT_EQ(session.leftovers().size(), 1U);
        auto* document = session.app.recoverDocument(session.leftovers()[0]);
        ASSERT_TRUE(document) << qPrintable(session.refusals.join(u' '));
        EXPECT_FALSE(document->isReadOnly());
        const auto bytes = stored(*document);
        EXPECT_TRUE(bytes == contents[0] || bytes == contents[1]) << "kill " << kill;
        session.app.closeDocument(*document);
        EXPECT_TRUE(eventually([this] { return nothingIsKept(); }));
    }
}

} // namespace
} // namespace ridelog
