#include "model/OdoTour.h"
#include "platform/TypedStreamReader.h"
#include "platform/TypedStreamWriter.h"
#include "platform/UndoManager.h"
#include "tests/support/Archives.h"
#include "tests/support/LogCapture.h"
#include "tests/support/Samples.h"
#include "tests/support/Tours.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace ridelog {
namespace {

QByteArray stored(const OdoTour& tour)
{
    return written([&tour](TypedStreamWriter& out) { tour.encodeWithCoder(out); });
}

std::shared_ptr<OdoTour> read(const QByteArray& archive)
{
    TypedStreamReader in(archive);
    auto tour = OdoTour::initWithCoder(in, berlin(2007, 12, 31));
    EXPECT_FALSE(in.failed()) << qPrintable(in.error()->text());
    return tour;
}

TEST(OdoTourCoding, ComesBackWithAllThatItHolds)
{
    const auto tour = tourThrough({500, 504, 502});
    tour->setTitle(QStringLiteral("Ο γύρος 🚴"));
    tour->setTourDescription(QStringLiteral("Zeile 1\nZeile 2"));
    tour->setRemoved(true);
    tour->setDate(berlin(2001, 2, 3, 4, 5));
    const auto again = read(stored(*tour));
    EXPECT_EQ(again->tourDataDict(), tour->tourDataDict());
    EXPECT_EQ(again->title(), tour->title());
    EXPECT_EQ(again->tourDescription(), tour->tourDescription());
    EXPECT_TRUE(again->removed());
    EXPECT_EQ(again->description(), tour->description()) << "the date is kept, whatever year it is now";
    EXPECT_EQ(again->data(), tour->data());
    EXPECT_EQ(stored(*again), stored(*tour));

    const auto empty = OdoTour::initWithOdoDataTourDict(std::nullopt, berlin(2007, 3, 10));
    EXPECT_EQ(read(stored(*empty))->tourDataDict(), std::nullopt);
}

TEST(OdoTourCoding, AppendedSamplesEnterTheSeriesWhenReadBack)
{
    const auto tour = tourThrough({500, 504});
    tour->appendTourData(std::vector<DataRect>(3));
    EXPECT_EQ(read(stored(*tour))->data().size(), 5U);
}

TEST(OdoTourCoding, UnknownEntriesAndOddValuesAreKept)
{
    const ArchiveClass tourClass{"OdoTour", 0, &ArchiveClasses::object};
    const auto old = written([&](TypedStreamWriter& out) {
        out.beginObject(tourClass);
        out.beginDictionary(3);
        out.writeConstant(QStringLiteral("month"));
        out.writeString(u"May");
        out.writeConstant(QStringLiteral("rider's mood"));
        out.writeNumber(ArchiveNumber(7.5));
        out.writeConstant(QStringLiteral("day"));
        out.writeNumber(ArchiveNumber(12));
        out.endObject();
        out.endObject();
    });
    const auto again = read(stored(*read(old)));
    ASSERT_EQ(again->tourDataDict()->otherEntries.size(), 2U);
    EXPECT_EQ(again->tourDataDict()->otherEntries[0].second.toText(), QStringLiteral("May"));
    EXPECT_EQ(again->tourDataDict()->otherEntries[1].second.toNumber(), ArchiveNumber(7.5));
    EXPECT_EQ(again->tourDataDict()->day, 12);
}

TEST(OdoTourCoding, UnknownVersionsAndOtherObjectsAreRefused)
{
    for (const int version : {-1, 5, 7}) {
        const ArchiveClass tourClass{"OdoTour", version, &ArchiveClasses::object};
        const auto archive = written([&](TypedStreamWriter& out) {
            out.beginObject(tourClass);
            out.endObject();
        });
        TypedStreamReader in(archive);
        EXPECT_EQ(OdoTour::initWithCoder(in), nullptr);
        ASSERT_TRUE(in.failed());
        EXPECT_TRUE(in.error()->what.contains(QStringLiteral("version %1,").arg(version)));
    }
    const auto text = written([](TypedStreamWriter& out) { out.writeString(u"no tour"); });
    TypedStreamReader in(text);
    EXPECT_EQ(OdoTour::initWithCoder(in), nullptr);
    EXPECT_TRUE(in.failed());
}

// Taken for nothing, it would be gone when the tour is stored the next time.
TEST(OdoTourCoding, AnObjectThatIsMissingOrAnotherIsRefused)
{
    const ArchiveClass tourClass{"OdoTour", 6, &ArchiveClasses::object};
    const std::function<void(TypedStreamWriter&)> objects[]{
        [](auto& out) { out.beginDictionary(0), out.endObject(); },
        [](auto& out) { out.writeString(u"title"); },
        [](auto& out) { StyledText(QStringLiteral("windy")).write(out); },
        [](auto& out) { out.writeData(QByteArrayView("\0", 1)); },
        [](auto& out) { out.writeDate(berlin(2007, 3, 10)); },
        [](auto& out) { out.writeNumber(ArchiveNumber(false)); },
    };
    const auto tourWith = [&](std::size_t count, std::size_t other) {
        return written([&](TypedStreamWriter& out) {
            out.beginObject(tourClass);
            for (std::size_t i = 0; i < count; ++i)
                i == other ? (out.beginArray(0), out.endObject()) : objects[i](out);
            out.endObject();
        });
    };
    const auto refusal = [](const QByteArray& archive) {
        TypedStreamReader in(archive);
        return OdoTour::initWithCoder(in, berlin(2007, 12, 31)) ? QString() : in.error()->text();
    };
    constexpr std::size_t all = std::size(objects);
    EXPECT_EQ(refusal(tourWith(all, all)), QString());
    for (std::size_t place = 0; place < all; ++place) {
        EXPECT_TRUE(refusal(tourWith(all, place)).contains(QStringLiteral("damaged"))) << place;
        EXPECT_NE(refusal(tourWith(place, all)), QString()) << place;
    }
}

TEST(OdoTourCoding, DocumentsOfAllVersionsGiveTheirTours)
{
    SKIP_WITHOUT_SAMPLES();
    const QDir documents(samplePath(QStringLiteral("documents")));
    const auto names = documents.entryList({QStringLiteral("*.ridelog")}, QDir::Files);
    ASSERT_GE(names.size(), 8);
    for (const auto& name : names) {
        SCOPED_TRACE(name.toStdString());
        QFile file(documents.filePath(name));
        QFile description(
            documents.filePath(QString(name).replace(QStringLiteral(".ridelog"), QStringLiteral(".json"))));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly) && description.open(QIODevice::ReadOnly));
        const auto bytes = file.readAll();
        const auto expected = QJsonDocument::fromJson(description.readAll()).object()[u"tours"].toArray();

        const LogCapture log;
        TypedStreamReader in(bytes);
        std::vector<std::shared_ptr<OdoTour>> tours;
        in.readDictionary([&](const QString& key) {
            if (key == u"toursArray")
                in.readArray(
                    [&](qsizetype) { tours.push_back(OdoTour::initWithCoder(in, berlin(2007, 12, 31))); });
        });
        ASSERT_FALSE(in.failed()) << qPrintable(in.error()->text());
        ASSERT_EQ(static_cast<qsizetype>(tours.size()), expected.size());
        for (qsizetype i = 0; i < expected.size(); ++i) {
            const auto& tour = *tours[static_cast<std::size_t>(i)];
            const auto wanted = expected[i].toObject();
            EXPECT_EQ(tour.title(), wanted[u"title"].toString(QStringLiteral("n/a")));
            EXPECT_EQ(tour.removed(), wanted[u"removed"].toBool());
            EXPECT_FALSE(tour.dataIsBigEndian());
            const auto samples = tour.tourData();
            ASSERT_EQ(static_cast<int>(samples.size()), wanted[u"samples"].toInt());
            EXPECT_EQ(samples.front().toHex(), wanted[u"first record"].toString().toLatin1());
            EXPECT_EQ(samples.back().toHex(), wanted[u"last record"].toString().toLatin1());
            if (const auto date = wanted[u"date"].toObject(); !date.isEmpty()) {
                constexpr double referenceDate = 978307200; // 2001-01-01, from which archives count
                EXPECT_EQ(static_cast<double>(tour.date().toSecsSinceEpoch()),
                          referenceDate + date[u"seconds"].toDouble());
            }
            const auto wantedEntries = wanted[u"tourDataDict"].toObject();
            forEachEntry(*tour.tourDataDict(), [&](QStringView key, const auto& value) {
                ASSERT_TRUE(value.has_value());
                EXPECT_EQ(QVariant::fromValue(*value).toString(), wantedEntries[key].toVariant().toString());
            });
        }
        EXPECT_TRUE(log.lines().contains(QStringLiteral("Version %1").arg(name.mid(8, 1))));
    }
}

TEST(OdoTourUndo, EveryEditGoesBackAndForthUnderItsName)
{
    UndoManager undo;
    const auto tour = tourThrough({500, 504});
    tour->setUndo(&undo);
    const auto before = stored(*tour);
    const std::pair<const char*, std::function<void()>> edits[]{
        {"date changed", [&] { tour->setDate(berlin(2001, 1, 1)); }},
        {"change title", [&] { tour->setTitle(QStringLiteral("evening loop")); }},
        {"change description", [&] { tour->setTourDescription(QStringLiteral("windy")); }},
        {"tour removed", [&] { tour->setRemoved(true); }},
    };
    for (const auto& [name, edit] : edits) {
        edit();
        undo.closeGroup();
        EXPECT_EQ(undo.undoActionName().toStdString(), name);
    }
    const auto after = stored(*tour);
    for (int round = 0; round < 3; ++round) {
        while (undo.undo()) {
        }
        EXPECT_EQ(stored(*tour), before);
        while (undo.redo()) {
        }
        EXPECT_EQ(stored(*tour), after);
    }
}

TEST(OdoTourUndo, OnlyTheRemovedMarkRegistersWithoutAChange)
{
    UndoManager undo;
    const auto tour = tourThrough({500, 504});
    tour->setUndo(&undo);
    tour->setTitle(tour->title());
    tour->setDate(tour->date());
    tour->setTourDescription(tour->tourDescription());
    EXPECT_FALSE(undo.canUndo());
    tour->setRemoved(false);
    undo.closeGroup();
    EXPECT_EQ(undo.undoActionName(), QStringLiteral("tour removed"));
}

} // namespace
} // namespace ridelog
