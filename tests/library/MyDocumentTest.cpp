#include "library/MyDocument.h"

#include "platform/TypedStreamWriter.h"
#include "tests/support/Archives.h"
#include "tests/support/Documents.h"
#include "tests/support/LogCapture.h"
#include "tests/support/Samples.h"
#include "tests/support/TemporaryFolder.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace ridelog {
namespace {

// A library of one tour as the older application stores it.
const char oneTour[] =
    "040b73747265616d747970656481e803840140848484134e534d757461626c6544696374696f6e6172790084840c4e53"
    "44696374696f6e617279008484084e534f626a65637400858401690292848484084e53537472696e67019584012b0b67"
    "656e6572616c446174618692849396019284979809576865656c73697a658692848484084e534e756d62657200848407"
    "4e5356616c7565009584012a8496968120088686928497980a746f757273417272617986928484840e4e534d75746162"
    "6c654172726179008484074e5341727261790095960192848484074f646f546f75720695928493960392849798047479"
    "706586928497980442696b658692849798056d6f6e74688692849b9b9d9603869284979808746f757244617461869284"
    "a0960292848484064e53446174610095961484055b3230635d4142434445464748494a4b4c4d4e4f5051525354869284"
    "ac9614a054535251504f4e4d4c4b4a49484746454443424186868692849798036e2f618692848484124e534174747269"
    "6275746564537472696e67009592849798036e2f6186840269490103928494960086869284ac960184045b31635d0086"
    "928484840e4e5343616c656e64617244617465008484064e5344617465009584016482f08ea20b928484840a4e535469"
    "6d655a6f6e650095928497980d4575726f70652f4265726c696e8686928497981425592d256d2d25642025483a254d3a"
    "255320257a868692849b9b84840163a80086868686";

TEST(MyDocument, ANewDocumentIsStoredAsTheOlderApplicationDoes)
{
    const MyDocument document;
    EXPECT_EQ(
        stored(document).toHex(' ').toStdString(),
        archiveOf(
            bytesOf("84 01 40 84 84 84 13 4E 53 4D 75 74 61 62 6C 65 44 69 63 74 69 6F 6E 61 72 79 00 84 84 "
                    "0C 4E 53 44 69 63 74 69 6F 6E 61 72 79 00 84 84 08 4E 53 4F 62 6A 65 63 74 00 85 84 01 "
                    "69 02 92 84 84 84 08 4E 53 53 74 72 69 6E 67 01 95 84 01 2B 0B 67 65 6E 65 72 61 6C 44 "
                    "61 74 61 86 92 84 93 96 00 86 92 84 97 98 0A 74 6F 75 72 73 41 72 72 61 79 86 92 84 84 "
                    "84 0E 4E 53 4D 75 74 61 62 6C 65 41 72 72 61 79 00 84 84 07 4E 53 41 72 72 61 79 00 95 "
                    "96 00 86 86"))
            .toHex(' ')
            .toStdString());
    MyDocument again;
    EXPECT_EQ(refusalOf(again, stored(document)), "");
    EXPECT_TRUE(again.toursArray().empty() && again.generalData().isEmpty());
}

TEST(MyDocument, WhatTheOlderApplicationStoresComesBackByteForByte)
{
    MyDocument document;
    ASSERT_EQ(refusalOf(document, bytesOf(oneTour)), "");
    EXPECT_EQ(document.generalData(), (GeneralData{{QStringLiteral("Wheelsize"), 2080}}));
    ASSERT_EQ(document.toursArray().size(), 1U);
    EXPECT_EQ(document.toursArray().front()->description(), QStringLiteral("2007-03-10 08:00:00 +0100"));
    EXPECT_EQ(stored(document).toHex().toStdString(), oneTour);
}

TEST(MyDocument, ComesBackWithAllThatItHolds)
{
    MyDocument document;
    fill(document);
    const auto bytes = stored(document);
    MyDocument again;
    ASSERT_EQ(refusalOf(again, bytes), "");
    const auto& tour = *again.toursArray().front();
    const auto& original = *document.toursArray().front();
    EXPECT_EQ(tour.title(), original.title());
    EXPECT_EQ(tour.tourDescription(), original.tourDescription());
    EXPECT_TRUE(tour.removed());
    EXPECT_EQ(tour.tourDataDict(), original.tourDataDict());
    EXPECT_EQ(again.generalData(), document.generalData());
    EXPECT_EQ(stored(again), bytes);
}

TEST(MyDocument, TheStoredFormStaysAsItWasTaken)
{
    MyDocument document;
    fill(document);
    const auto bytes = stored(document);
    const auto form = document.storedForm();
    const auto tour = document.toursArray().front();
    tour->setTitle(QStringLiteral("Home"));
    tour->setTourDescription(QStringLiteral("calm"));
    tour->setRemoved(false);
    tour->setDate(berlin(2001, 1, 1));
    tour->appendTourData(std::vector<DataRect>(3));
    document.setGeneralData({});
    document.addNewToursFromArray(rides(1, 2));
    QByteArray given;
    form([&given](QByteArrayView piece) { given += piece; });
    EXPECT_EQ(given, bytes);
}

TEST(MyDocument, WhatIsNotKnownHereIsKept)
{
    const auto bytes = written([](TypedStreamWriter& out) {
        out.beginDictionary(3);
        out.writeConstant(QStringLiteral("rider"));
        out.writeString(u"Ada");
        out.writeConstant(QStringLiteral("generalData"));
        out.beginDictionary(3);
        out.writeConstant(QStringLiteral("Wheelsize"));
        out.writeNumber(ArchiveNumber(2096.5));
        out.writeConstant(QStringLiteral("Weight"));
        out.writeNumber(ArchiveNumber(75));
        out.writeConstant(QStringLiteral("bike"));
        out.writeString(u"blue");
        out.endObject();
        out.writeConstant(QStringLiteral("toursArray"));
        out.beginArray(0);
        out.endObject();
        out.endObject();
    });
    MyDocument document;
    ASSERT_EQ(refusalOf(document, bytes), "");
    EXPECT_EQ(document.generalData(), (GeneralData{{QStringLiteral("Weight"), 75}}));
    const auto again = stored(document);
    const auto kept = TypedStreamReader(again).readObject();
    EXPECT_EQ(kept.valueForKey(u"rider").toText(), QStringLiteral("Ada"));
    EXPECT_EQ(kept.valueForKey(u"generalData").valueForKey(u"Wheelsize").toNumber(), ArchiveNumber(2096.5));
    EXPECT_EQ(kept.valueForKey(u"generalData").valueForKey(u"bike").toText(), QStringLiteral("blue"));
}

TEST(MyDocument, SaysWhatItTakesOver)
{
    MyDocument document;
    const LogCapture log;
    ASSERT_TRUE(document.loadDataRepresentation(bytesOf(oneTour), QStringLiteral("any type")));
    auto lines = log.lines();
    lines.replaceInStrings(QRegularExpression(QStringLiteral("0x[0-9a-f]+")), QStringLiteral("POINTER"));
    EXPECT_EQ(lines.join(u'\n').toStdString(),
              "About to read data of type: any type\nVersion 6\ncalculateAllValues\n"
              "calculateAllValues: 3 data added\nsetToursArray\nundoManager POINTER\nsetGeneralData");
}

TEST(MyDocument, ARefusedFileSaysWhyAndChangesNothing)
{
    const auto library = [](auto&& entries, int count) {
        return written([&](TypedStreamWriter& out) {
            out.beginDictionary(count);
            entries(out);
            out.endObject();
        });
    };
    const auto text = [](TypedStreamWriter& out, QStringView key) {
        out.writeConstant(key.toString());
        out.writeString(u"no");
    };
    const auto empty = [](TypedStreamWriter& out, QStringView key, bool list) {
        out.writeConstant(key.toString());
        list ? out.beginArray(0) : out.beginDictionary(0);
        out.endObject();
    };
    auto version7 = bytesOf(oneTour);
    version7.replace("OdoTour\6", "OdoTour\7");
    auto hugeList = bytesOf(oneTour);
    hugeList.replace(bytesOf("95 96 01 92 84 84 84 07 4F"),
                     bytesOf("95 96 82 FF FF FF 7F 92 84 84 84 07 4F"));
    auto deep = archiveOf({});
    for (int level = 0; level < 100'000; ++level)
        deep += level == 0 ? bytesOf("84 01 40 84 84 84 07 4E 53 41 72 72 61 79 00 85 84 01 69 01")
                           : bytesOf("92 84 93 94 01");

    const std::pair<QByteArray, const char*> cases[]{
        {"", "no typed stream at byte 0"},
        {"GIF89a, or what else people have", "no typed stream at byte 0"},
        {written([](TypedStreamWriter& out) { out.writeString(u"text"); }), "not of a tour library"},
        {written([](TypedStreamWriter& out) { out.writeNil(); }), "not of a tour library"},
        {library([&](auto& out) { empty(out, u"toursArray", true); }, 1), "\"generalData\" is missing"},
        {library([&](auto& out) { empty(out, u"generalData", false); }, 1), "\"toursArray\" is missing"},
        {library(
             [&](auto& out) {
                 empty(out, u"toursArray", true);
                 text(out, u"generalData");
             },
             2),
         "\"generalData\" is no dictionary"},
        {library(
             [&](auto& out) {
                 empty(out, u"generalData", false);
                 text(out, u"toursArray");
             },
             2),
         "\"toursArray\" is no list"},
        {version7, "a tour is stored in version 7, which this program does not know at byte"},
        {hugeList, "2147483647 elements do not fit into 335 bytes at byte 218"},
        {deep, "nest"},
    };
    MyDocument document;
    fill(document);
    const auto before = stored(document);
    for (const auto& [bytes, reason] : cases) {
        const auto refusal = refusalOf(document, bytes);
        EXPECT_NE(refusal.find(reason), std::string::npos) << refusal << " / " << reason;
        EXPECT_EQ(stored(document), before);
    }
}

TEST(MyDocument, DocumentsOfAllVersionsAreUpgraded)
{
    SKIP_WITHOUT_SAMPLES();
    const QDir folder(samplePath(QStringLiteral("documents")));
    const auto names = folder.entryList({QStringLiteral("*.ridelog")}, QDir::Files);
    ASSERT_GE(names.size(), 8);
    for (const auto& name : names) {
        SCOPED_TRACE(name.toStdString());
        MyDocument document;
        ASSERT_EQ(document.open(folder.filePath(name), MyDocument::Missing::refuse, berlin(2007, 12, 31)),
                  std::nullopt);
        EXPECT_FALSE(document.isChanged());
        QFile description(
            folder.filePath(QString(name).replace(QStringLiteral(".ridelog"), QStringLiteral(".json"))));
        ASSERT_TRUE(description.open(QIODevice::ReadOnly));
        const auto expected =
            QJsonDocument::fromJson(description.readAll()).object()[u"generalData"].toObject();
        EXPECT_EQ(document.generalData().size(), expected.size());
        for (auto entry = expected.begin(); entry != expected.end(); ++entry)
            EXPECT_EQ(document.generalData().value(entry.key(), -1), entry->toInt())
                << entry.key().toStdString();

        MyDocument again;
        ASSERT_EQ(refusalOf(again, stored(document)), "");
        ASSERT_EQ(again.toursArray().size(), document.toursArray().size());
        for (std::size_t i = 0; i < again.toursArray().size(); ++i) {
            EXPECT_EQ(again.toursArray()[i]->data(), document.toursArray()[i]->data());
            EXPECT_EQ(again.toursArray()[i]->description(), document.toursArray()[i]->description());
        }
    }
}

TEST(MyDocument, OpenedForReadingItKeepsNobodyFromWriting)
{
    const TemporaryFolder folder;
    const auto path = folder.write("one.ridelog", bytesOf(oneTour));
    MyDocument reader;
    ASSERT_EQ(reader.openForReading(path), std::nullopt);
    EXPECT_EQ(reader.toursArray().size(), 1U);
    EXPECT_TRUE(reader.save().has_value());
    MyDocument writer;
    ASSERT_EQ(writer.open(path), std::nullopt);
    EXPECT_FALSE(writer.isReadOnly());
    EXPECT_EQ(reader.openForReading(path), std::nullopt) << "also while it is open elsewhere";
}

TEST(MyDocument, ToursAreRemovedAndRestoredInOneStepEach)
{
    MyDocument document;
    ASSERT_EQ(refusalOf(document, bytesOf(oneTour)), "");
    const auto& tour = document.toursArray().front();
    int told = 0;
    QObject::connect(&document.tourChanges(), &TourChanges::changed, [&] { ++told; });
    document.deleteTour(tour);
    EXPECT_TRUE(tour->removed() && document.isChanged());
    auto& undo = document.undoManager();
    for (int round = 0; round < 3; ++round) {
        EXPECT_EQ(undo.undoActionName(), QStringLiteral("tour removed"));
        EXPECT_TRUE(undo.undo());
        EXPECT_FALSE(tour->removed() || document.isChanged() || undo.canUndo());
        EXPECT_TRUE(undo.redo());
        EXPECT_TRUE(tour->removed() && !undo.canRedo());
    }
    EXPECT_EQ(told, 7);
    document.undeleteTour(tour);
    EXPECT_TRUE(undo.undo());
    EXPECT_TRUE(tour->removed());
}

} // namespace
} // namespace ridelog
