#include "library/AppController.h"

#include "library/DefaultsKeys.h"
#include "platform/Defaults.h"
#include "tests/support/LogCapture.h"
#include "tests/support/TemporaryFolder.h"

#include <QDir>

#include <gtest/gtest.h>

namespace ridelog {
namespace {

/// The application from its start to its end, and what its windows are told.
struct Session {
    explicit Session(const TemporaryFolder& folder)
        : defaults(folder.path("ridelog.ini")), app(defaults, folder.path("recovery"))
    {
        QObject::connect(&app, &AppController::documentOpened,
                         [this](const MyDocument* document) { opened.append(document->path()); });
        QObject::connect(&app, &AppController::openFailed,
                         [this](const QString& path, const QString& reason) {
                             failed.append(path);
                             EXPECT_FALSE(reason.isEmpty());
                         });
    }

    Defaults defaults;
    AppController app;
    QStringList opened;
    QStringList failed;
};

class AppControllerTest : public testing::Test {
protected:
    QString saved(const char* name) const
    {
        EXPECT_EQ(MyDocument().saveAs(folder.path(name)), std::nullopt);
        return folder.path(name);
    }

    TemporaryFolder folder;
};

TEST_F(AppControllerTest, TheStartOpensTheMostRecentDocumentOrNone)
{
    const auto asked = QStringLiteral("applicationShouldOpenUntitledFile");
    const auto older = saved("older.ridelog");
    const auto newer = saved("newer.ridelog");
    {
        Session first(folder);
        EXPECT_TRUE(first.defaults.boolForKey(DefaultsKeys::drawerOpen));
        EXPECT_TRUE(first.defaults.boolForKey(DefaultsKeys::saveRawData));
        first.app.newDocument();
        EXPECT_EQ(first.opened, QStringList{QString()});
        const LogCapture log;
        EXPECT_TRUE(first.app.applicationShouldOpenUntitledFile()) << "a new document is not a recent one";
        EXPECT_EQ(log.lines(), QStringList{asked});
        EXPECT_EQ(first.opened.size(), 1);
        first.app.openDocument(older);
        first.app.openDocument(newer);
    }
    for (const bool exists : {true, false}) {
        Session next(folder);
        const LogCapture log;
        EXPECT_FALSE(next.app.applicationShouldOpenUntitledFile());
        const auto recent = QStringLiteral("(%1, %2)\nfirst: %1").arg(newer, older);
        EXPECT_EQ(log.lines().first(2), (QStringList{asked, recent}));
        EXPECT_EQ(log.lines().last(),
                  QStringLiteral("documentForURL returned: ") + (exists ? newer : QStringLiteral("(null)")));
        EXPECT_EQ(exists ? next.opened : next.failed, QStringList{newer});
        EXPECT_EQ(next.app.documents().size(), exists ? 1 : 0);
        EXPECT_EQ(next.app.recentDocuments(), (QStringList{newer, older})) << "it may come back";
        QFile::remove(newer);
    }
}

TEST_F(AppControllerTest, AFileIsOpenOnce)
{
    Session session(folder);
    const auto path = saved("tours.ridelog");
    const auto link = folder.path("link.ridelog");
    QFile::link(path, link);
    auto* document = session.app.openDocument(QDir::current().relativeFilePath(path));
    ASSERT_TRUE(document);
    EXPECT_EQ(session.app.openDocument(link), document);
    EXPECT_EQ(session.app.openDocument(path), document);
    EXPECT_EQ(session.opened, QStringList{path});
    EXPECT_EQ(session.app.recentDocuments(), QStringList{path});

    session.app.closeDocument(*document);
    EXPECT_TRUE(session.app.documents().empty());
    document = session.app.openDocument(path);
    ASSERT_TRUE(document);
    EXPECT_FALSE(document->isReadOnly()) << "closing freed the file";
}

TEST_F(AppControllerTest, NothingIsSavedWhereCopiesComeAndGo)
{
    QDir().mkpath(folder.path("recovery/left"));
    const auto copy = saved("recovery/left/1.ridelog");
    Session session(folder);
    auto& document = session.app.newDocument();
    EXPECT_NE(session.app.saveDocumentAs(document, copy), std::nullopt);
    EXPECT_TRUE(document.path().isEmpty());
    const auto* found = session.app.openDocument(copy);
    ASSERT_TRUE(found);
    EXPECT_TRUE(found->isReadOnly());
    EXPECT_EQ(session.app.recentDocuments(), QStringList());
}

TEST_F(AppControllerTest, TenRecentDocumentsAreKeptNewestFirst)
{
    QStringList expected;
    {
        Session session(folder);
        for (const auto* name : {"a", "b", "c", "d", "e", "f", "g", "h", "i", "j", "k"}) {
            expected.prepend(folder.path(name));
            EXPECT_EQ(session.app.saveDocumentAs(session.app.newDocument(), expected[0]), std::nullopt);
        }
        expected.removeLast();
        expected.move(4, 0);
        session.app.openDocument(expected[0]);
        EXPECT_NE(session.app.saveDocumentAs(session.app.newDocument(), folder.path("none/x")), std::nullopt);
        EXPECT_FALSE(session.app.openDocument(folder.write("notes.txt", "no archive")));
        EXPECT_EQ(session.app.recentDocuments(), expected);
    }
    Session next(folder);
    EXPECT_EQ(next.app.recentDocuments(), expected);
    // As somebody may have written it.
    next.defaults.setValue(
        DefaultsKeys::recentDocuments,
        QStringList{QString(), expected[1], QStringLiteral("x"), expected[1], expected[0]});
    EXPECT_EQ(next.app.recentDocuments(), (QStringList{expected[1], expected[0]}));
}

} // namespace
} // namespace ridelog
