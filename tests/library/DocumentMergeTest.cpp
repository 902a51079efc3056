// How dumps reach a document: the merge and the two roads into it.

#include "library/DefaultsKeys.h"
#include "library/RawDump.h"
#include "platform/Defaults.h"
#include "tests/support/Documents.h"
#include "tests/support/LogCapture.h"
#include "tests/support/Samples.h"
#include "tests/support/TemporaryFolder.h"

#include <QDir>

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace ridelog {
namespace {

std::vector<std::string> starts(const MyDocument& document)
{
    std::vector<std::string> all;
    for (const auto& tour : document.toursArray())
        all.push_back(tour->description().toStdString());
    std::ranges::sort(all);
    return all;
}

TEST(DocumentMerge, AddsWhatIsNotThereYetAsOneStep)
{
    MyDocument document;
    const auto tours = rides(1, 5);
    document.addNewToursFromArray({tours[0], tours[3]});
    document.undoManager().closeGroup();
    const LogCapture log;
    EXPECT_EQ(document.addNewToursFromArray(tours), 3U);
    EXPECT_TRUE(log.lines().filter(QStringLiteral("Tourdate: ")).size() == 3 &&
                log.lines().contains(QStringLiteral("3 tours added")))
        << log.lines().join(u'\n').toStdString();
    EXPECT_EQ(document.toursArray(), (Tours{tours[0], tours[3], tours[1], tours[2], tours[4]}));
    EXPECT_EQ(document.undoManager().undoActionName(), QStringLiteral("adding 3 tours"));
    EXPECT_TRUE(document.undoManager().undo());
    EXPECT_EQ(document.toursArray(), (Tours{tours[0], tours[3]}));
    tours[1]->setTitle(QStringLiteral("edited by who still has it"));
    EXPECT_TRUE(document.undoManager().canRedo()) << "it is not this document's edit";
    EXPECT_TRUE(document.undoManager().redo());
    EXPECT_EQ(document.toursArray().size(), 5U);
    EXPECT_EQ(document.addNewToursFromArray(tours), 0U);
    EXPECT_EQ(document.addNewToursFromArray({}), 0U);
}

TEST(DocumentMerge, TheSameTourIsAddedOnceWhateverBecameOfIt)
{
    MyDocument document;
    const auto tour = [] { return tourThrough({500, 504, 502}); };
    const auto shorter = tourThrough({500, 504});
    auto later = tour();
    later->setDate(later->date().addSecs(60));
    EXPECT_EQ(document.addNewToursFromArray({tour(), shorter, tour(), later}), 3U)
        << "one start with another distance is another tour, one list may hold a tour twice";

    document.deleteTour(document.toursArray().front());
    document.toursArray().front()->setTitle(QStringLiteral("edited"));
    EXPECT_EQ(document.addNewToursFromArray({tour()}), 0U);
    EXPECT_TRUE(document.toursArray().front()->removed());

    // A tour that goes on at the front of the memory: the same samples, but not yet the same distance.
    const auto stitched = tourThrough({500, 504, 502, 510});
    const auto cutOff = tourThrough({500, 504, 502});
    const std::vector<DataRect> all(stitched->tourData().begin(), stitched->tourData().end());
    cutOff->appendTourData(std::span(all).last(1));
    MyDocument other;
    EXPECT_EQ(other.addNewToursFromArray({stitched, cutOff}), 1U);
}

// Many riders' dumps overlap: any order and any repetition gives the same tours.
TEST(DocumentMerge, NeitherOrderNorRepetitionMatters)
{
    std::mt19937 random(20071231);
    for (int round = 0; round < 50; ++round) {
        std::vector<Tours> dumps;
        for (std::uint32_t seed = 1; seed <= 4; ++seed)
            dumps.push_back(rides(seed, 6));
        dumps.push_back({dumps[0][2], dumps[1][1], dumps[0][2], dumps[3][5]});
        MyDocument inOrder;
        for (const auto& dump : dumps)
            inOrder.addNewToursFromArray(dump);
        std::ranges::shuffle(dumps, random);
        MyDocument shuffled;
        for (int again = 0; again < 2; ++again) {
            for (const auto& dump : dumps)
                shuffled.addNewToursFromArray(dump);
        }
        ASSERT_EQ(starts(shuffled), starts(inOrder));
        ASSERT_EQ(inOrder.toursArray().size(), 24U);
    }
}

TEST(DocumentMerge, RealDumpsInAnyOrderGiveEachTourOnce)
{
    SKIP_WITHOUT_SAMPLES();
    QStringList names{QStringLiteral("spring"), QStringLiteral("summer"),     QStringLiteral("autumn"),
                      QStringLiteral("winter"), QStringLiteral("whole-year"), QStringLiteral("wrapped")};
    const TemporaryFolder folder;
    const auto path = folder.path("year.ridelog");
    const auto importAll = [&](MyDocument& document) {
        std::size_t added = 0;
        for (const auto& name : names) {
            const auto import = document.importFile(samplePath(QStringLiteral("dumps/%1.odo").arg(name)),
                                                    berlin(2007, 12, 31));
            EXPECT_EQ(import.refusal, QString());
            added += import.added;
            document.undoManager().closeGroup();
        }
        return added;
    };
    std::mt19937 random(7);
    for (int round = 0; round < 12; ++round) {
        MyDocument document;
        EXPECT_EQ(importAll(document), 24U) << names.join(u' ').toStdString();
        EXPECT_EQ(importAll(document), 0U);
        ASSERT_EQ(document.saveAs(path), std::nullopt);
        MyDocument reopened;
        ASSERT_TRUE(!reopened.open(path)) << "still kept by the other one, which does not matter for reading";
        EXPECT_TRUE(reopened.isReadOnly());
        EXPECT_EQ(importAll(reopened), 0U) << names.join(u' ').toStdString();
        std::ranges::shuffle(names, random);
    }
}

TEST(DocumentImport, ReplacesTheGeneralDataUnlessTheFileIsNoDump)
{
    const TemporaryFolder folder;
    MyDocument document;
    document.setGeneralData({{QStringLiteral("Wheelsize"), 1}});
    const auto dump = folder.write("rides.odo", RideGenerator{.tours = 2}.dump());
    const auto before = stored(document);
    const auto import = document.importFile(dump, berlin(2007, 12, 31));
    EXPECT_TRUE(import.added == 2 && import.alreadyThere == 0 && import.refusal.isEmpty());
    EXPECT_EQ(document.generalData().size(), 28);
    EXPECT_EQ(document.undoManager().undoActionName(), QStringLiteral("adding 2 tours"));
    document.undoManager().undo();
    EXPECT_EQ(stored(document), before) << "one step takes tours and general data back";
    document.undoManager().redo();
    document.undoManager().setClean();

    const auto garbage = document.importFile(folder.write("note.txt", "dear diary"), berlin(2007, 12, 31));
    EXPECT_TRUE(garbage.added == 0 && !garbage.refusal.isEmpty());
    EXPECT_FALSE(document.importFile(folder.path("missing.odo")).refusal.isEmpty());
    EXPECT_EQ(document.importFile(dump, berlin(2007, 12, 31)).alreadyThere, 2U);
    document.undoManager().closeGroup();
    document.toursArray().front()->setTitle(QStringLiteral("edited"));
    document.importFile(dump, berlin(2007, 12, 31));
    EXPECT_EQ(document.undoManager().undoActionName(), QStringLiteral("change title"));
    document.undoManager().undo();
    EXPECT_FALSE(document.isChanged()) << "nothing was added, nothing is to be saved";
    EXPECT_EQ(document.generalData().size(), 28);
}

class DocumentTransfer : public testing::Test {
protected:
    void SetUp() override { qputenv("HOME", QFile::encodeName(folder.path("."))); }
    void TearDown() override { qputenv("HOME", home); }

    QByteArray content(const char* name) const
    {
        QFile file(folder.path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QByteArray home = qgetenv("HOME");
    TemporaryFolder folder;
    Defaults defaults{folder.path("settings")};
    MyDocument document{&defaults};
    QByteArray dump = RideGenerator{.tours = 2}.dump();
};

TEST_F(DocumentTransfer, AWholeDumpIsMergedAndKept)
{
    DefaultsKeys::registerApplicationDefaults(defaults);
    document.setGeneralData({{QStringLiteral("Wheelsize"), 1}});
    const LogCapture log;
    EXPECT_EQ(document.handleTransferFinished(dump).added, 2U);
    EXPECT_EQ(document.generalData().size(), 1) << "only an import replaces them";
    EXPECT_EQ(content("odoData.odo"), dump);
    const auto write =
        QStringLiteral("Write raw data to: ") + QDir::home().filePath(QStringLiteral("odoData.odo"));
    EXPECT_EQ(log.lines().first(3), (QStringList{QStringLiteral("[handleTransferFinished]"),
                                                 QStringLiteral("data received 81930"), write}));

    const auto longer = dump + QByteArray(5, ' ');
    EXPECT_EQ(document.handleTransferFinished(longer).alreadyThere, 2U);
    EXPECT_EQ(content("odoData.odo"), longer);
    defaults.setValue(DefaultsKeys::saveRawData, false);
    EXPECT_FALSE(document.handleTransferFinished("too short").refusal.isEmpty());
    EXPECT_EQ(content("odoData.odo"), longer) << "nobody wanted it";

    defaults.setValue(DefaultsKeys::saveRawData, true);
    qputenv("HOME", "/nowhere");
    document.undoManager().undo();
    EXPECT_EQ(document.handleTransferFinished(dump).added, 2U) << "the tours come in all the same";
    EXPECT_TRUE(log.errors().last().startsWith(QStringLiteral("Could not write raw data to: /nowhere/")));
}

TEST_F(DocumentTransfer, WhatArrivedOfAStoppedOneIsKeptApart)
{
    EXPECT_FALSE(keepStoppedDump({}));
    EXPECT_FALSE(QFile::exists(folder.path("odoData.odo.tmp")));
    const auto kept = keepStoppedDump(dump.first(1000));
    EXPECT_EQ(kept->path, folder.path("odoData.odo.tmp"));
    EXPECT_TRUE(kept->error.isEmpty());
    EXPECT_EQ(content("odoData.odo.tmp"), dump.first(1000));
}

} // namespace
} // namespace ridelog
