#include "tests/support/FailingDisk.h"
#include "tests/ui/Application.h"
#include "ui/StartWindow.h"

#include <QFileDialog>
#include <QMimeData>
#include <QProcess>

#include <cerrno>

namespace ridelog {
namespace {

class MainWindowFiles : public Application {};

TEST_F(MainWindowFiles, ClosingAsksAboutUnsavedChanges)
{
    start();
    window().importDump(dump());
    ASSERT_EQ(controller->saveDocumentAs(document(), path("tours.ridelog")), std::nullopt);
    trigger("Remove Tour");
    answer("Cancel");
    window().close();
    EXPECT_TRUE(question.startsWith(QStringLiteral("Save the changes of tours.ridelog")));
    ASSERT_EQ(windows->mainWindows().size(), 1U);
    answer("Save");
    window().close();
    EXPECT_TRUE(eventually([&] { return windows->mainWindows().empty(); }));
    EXPECT_TRUE(controller->documents().empty()) << "its file is free for others";

    windows->openDocument(path("tours.ridelog"), nullptr);
    EXPECT_EQ(rows(), 4);
    action(QStringLiteral("Show Removed Tours"))->trigger();
    window().tourController().selectRow(0);
    trigger("Restore Tour");
    answer("Don't Save");
    window().close();
    EXPECT_TRUE(eventually([&] { return windows->mainWindows().empty(); }));
    windows->openDocument(path("tours.ridelog"), nullptr);
    EXPECT_EQ(rows(), 4) << "as it was saved";
}

TEST_F(MainWindowFiles, WhatOthersWroteIsNotOverwrittenUnasked)
{
    start();
    window().importDump(dump());
    ASSERT_EQ(controller->saveDocumentAs(document(), path("tours.ridelog")), std::nullopt);
    const auto theirs = write("tours.ridelog", "theirs");
    trigger("Remove Tour");
    answer("Cancel");
    EXPECT_FALSE(window().save());
    EXPECT_EQ(read("tours.ridelog"), "theirs");
    answer("Overwrite");
    EXPECT_TRUE(window().save());
    EXPECT_TRUE(MyDocument::isDocument(read("tours.ridelog")));
    window().tourController().selectRow(0);
    trigger("Remove Tour");
    EXPECT_EQ(rows(), 3);
    answer("Revert");
    trigger("Revert");
    EXPECT_EQ(rows(), 4);
    EXPECT_FALSE(window().isWindowModified());
}

TEST_F(MainWindowFiles, ADocumentThatIsGoneLeadsToTheStartWindow)
{
    start();
    window().importDump(dump());
    ASSERT_EQ(controller->saveDocumentAs(document(), path("tours.ridelog")), std::nullopt);
    end();
    ASSERT_TRUE(QFile::remove(path("tours.ridelog")));
    start();
    EXPECT_TRUE(windows->mainWindows().empty());
    ASSERT_NE(windows->startWindow(), nullptr);
    EXPECT_TRUE(
        windows->startWindow()->message().contains(QStringLiteral("tours.ridelog could not be opened")));
    for (auto* button : windows->startWindow()->findChildren<QAbstractButton*>()) {
        if (button->text() == u"New")
            button->click();
    }
    ASSERT_EQ(windows->mainWindows().size(), 1U);
    EXPECT_TRUE(eventually([&] { return windows->startWindow() == nullptr; }));
}

TEST_F(MainWindowFiles, FilesThatAreGivenOrDroppedAreOpenedOrImported)
{
    start({dump()});
    EXPECT_EQ(rows(), 5);
    ASSERT_EQ(controller->saveDocumentAs(document(), path("tours.ridelog")), std::nullopt);
    end();
    start({path("tours.ridelog")});
    EXPECT_EQ(rows(), 5);
    windows->takeFiles({path("tours.ridelog")});
    EXPECT_EQ(windows->mainWindows().size(), 1U) << "it is open already";

    QMimeData dropped;
    dropped.setUrls({QUrl::fromLocalFile(dump(7))});
    QDragEnterEvent enter(QPoint(9, 9), Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(9, 9), Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window(), &drop);
    EXPECT_TRUE(eventually([&] { return rows() == 10; }));
}

TEST_F(MainWindowFiles, WhatACrashLeftIsOffered)
{
    start({dump()});
    ASSERT_EQ(controller->saveDocumentAs(document(), path("tours.ridelog")), std::nullopt);
    trigger("Remove Tour");
    bool isWritten = false;
    QObject::connect(&controller->recovery(), &DocumentRecovery::written, &answers,
                     [&] { isWritten = true; });
    ASSERT_TRUE(eventually([&] { return isWritten; }));
    // As a crash leaves it: nothing is cleared away.
    ASSERT_EQ(QProcess::execute(QStringLiteral("cp"), {QStringLiteral("-r"), path("recovery"), path("left")}),
              0);
    answer("Don't Save");
    window().close();
    ASSERT_TRUE(eventually([&] { return windows->mainWindows().empty(); }));
    end();

    recoveryFolder = "left";
    answer("Ask Me Later");
    start();
    EXPECT_TRUE(question.startsWith(QStringLiteral("ridelog ended before ") + path("tours.ridelog")));
    EXPECT_EQ(rows(), 5);
    end();
    answer("Recover");
    start();
    ASSERT_EQ(windows->mainWindows().size(), 1U);
    EXPECT_EQ(rows(), 4);
    EXPECT_EQ(document().path(), path("tours.ridelog"));
    EXPECT_TRUE(window().isWindowModified());
    EXPECT_TRUE(window().save());
    end();
    start();
    EXPECT_EQ(rows(), 4);
}

TEST_F(MainWindowFiles, ADamagedCopyIsToldOfAndKept)
{
    start({dump()});
    bool isWritten = false;
    QObject::connect(&controller->recovery(), &DocumentRecovery::written, &answers,
                     [&] { isWritten = true; });
    ASSERT_TRUE(eventually([&] { return isWritten; }));
    end();
    const auto copies = QDir(path("recovery")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    ASSERT_EQ(copies.size(), 1);
    ASSERT_TRUE(QFile::resize(path("recovery/") + copies[0] + QStringLiteral("/1.ridelog"), 700));
    answer("Recover", [this] { answer("Keep"); });
    start();
    EXPECT_TRUE(question.startsWith(QStringLiteral("What ridelog kept of a document without a name could")))
        << qPrintable(question);
    EXPECT_TRUE(question.contains(path("recovery/") + copies[0]));
    EXPECT_EQ(windows->mainWindows().size(), 1U) << "and work can go on";
    end();
    answer("Discard");
    start();
    EXPECT_FALSE(QDir(path("recovery/") + copies[0]).exists());
}

TEST_F(MainWindowFiles, SavesWhereTheRiderSays)
{
    start({dump()});
    choose({});
    EXPECT_FALSE(window().save()) << "nowhere";
    EXPECT_TRUE(window().isWindowModified());
    answer("Save", [this] { choose({}); });
    EXPECT_FALSE(window().close()) << "what is not saved is not closed";
    choose(path("tours"));
    trigger("Save");
    EXPECT_EQ(document().path(), path("tours.ridelog"));
    EXPECT_FALSE(window().isWindowModified());
    EXPECT_EQ(window().message(), QStringLiteral("Saved as %1.").arg(path("tours.ridelog")));
    EXPECT_EQ(controller->recentDocuments(), QStringList{path("tours.ridelog")});

    trigger("Remove Tour");
    const auto saved = read("tours.ridelog");
    {
        FailingDisk disk(path({}), {});
        disk.failBeyond(100, ENOSPC);
        answer("OK");
        EXPECT_FALSE(window().save());
        EXPECT_TRUE(question.contains(QStringLiteral("No space left"))) << qPrintable(question);
    }
    EXPECT_EQ(read("tours.ridelog"), saved);
    EXPECT_TRUE(window().isWindowModified());
    EXPECT_EQ(rows(), 4) << "and it can be tried again";
    EXPECT_TRUE(window().save());
}

TEST_F(MainWindowFiles, ADocumentThatIsOpenElsewhereIsReadOnly)
{
    start({dump()});
    ASSERT_EQ(controller->saveDocumentAs(document(), path("tours.ridelog")), std::nullopt);
    end();
    MyDocument elsewhere;
    ASSERT_EQ(elsewhere.open(path("tours.ridelog")), std::nullopt);
    start();
    EXPECT_TRUE(window().windowTitle().contains(QStringLiteral("(read-only)")));
    EXPECT_TRUE(window().message().startsWith(QStringLiteral("The document can only be read: ")));
    trigger("Remove Tour");
    const auto saved = read("tours.ridelog");
    choose(path("copy"));
    EXPECT_TRUE(window().save());
    EXPECT_EQ(document().path(), path("copy.ridelog"));
    EXPECT_EQ(read("tours.ridelog"), saved);
    EXPECT_FALSE(window().windowTitle().contains(QStringLiteral("(read-only)")));
}

TEST_F(MainWindowFiles, AnAnswerIsForWhatWasThereWhenItWasAsked)
{
    start({dump()});
    ASSERT_EQ(controller->saveDocumentAs(document(), path("tours.ridelog")), std::nullopt);
    window().tourController().selectRow(2);
    const auto tour = window().tourController().selectedTour();
    trigger("Remove Tour");
    answer("Revert", [this] { window().importDump(dump(9, 3)); });
    trigger("Revert");
    EXPECT_EQ(rows(), 7) << "tours that came meanwhile stay";
    EXPECT_TRUE(window().message().startsWith(QStringLiteral("The document was not reverted")));
    answer("Revert");
    trigger("Revert");
    EXPECT_EQ(rows(), 5);
    EXPECT_EQ(window().chartView().dataProvider(), window().tourController().selectedTour());
    EXPECT_NE(window().chartView().dataProvider(), tour) << "which is none of the document's any more";

    trigger("Remove Tour");
    answer("Don't Save", [this] {
        window().importDump(dump(9, 3));
        answer("Cancel");
    });
    EXPECT_FALSE(window().close());
    EXPECT_EQ(rows(), 7);
    answer("Cancel", [this] { EXPECT_FALSE(window().close()) << "it is being asked about"; });
    trigger("Revert");
}

TEST_F(MainWindowFiles, OfSeveralFilesNoneIsPassedOver)
{
    start({dump()});
    ASSERT_EQ(controller->saveDocumentAs(document(), path("tours.ridelog")), std::nullopt);
    end();
    const auto another = write("50%1 of %3.odo", RideGenerator{.seed = 9, .tours = 3}.dump());
    const auto damaged = write("damaged.ridelog", "no document");
    const auto wrong = write("wrong.odo", "no dump");
    start({path("gone.ridelog"), path("tours.ridelog")});
    EXPECT_TRUE(
        window().message().startsWith(path("gone.ridelog") + QStringLiteral(" could not be opened: ")));

    // What is dropped on an untouched window goes into the document that takes its place.
    end();
    QFile::remove(path("settings"));
    start();
    ASSERT_TRUE(document().path().isEmpty());
    windows->takeFiles({another, path("tours.ridelog"), damaged, wrong}, &window());
    ASSERT_TRUE(eventually([&] { return windows->mainWindows().size() == 1; }));
    EXPECT_EQ(document().path(), path("tours.ridelog"));
    EXPECT_EQ(rows(), 8);
    EXPECT_TRUE(
        window().message().contains(QStringLiteral("50%1 of %3.odo: 3 tours added, 0 already there.")));
    EXPECT_TRUE(window().message().contains(damaged + QStringLiteral(" could not be opened: ")));
    EXPECT_TRUE(window().message().contains(QStringLiteral("wrong.odo was not imported: ")));
}

} // namespace
} // namespace ridelog
