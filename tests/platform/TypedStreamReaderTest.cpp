#include "platform/TypedStreamReader.h"

#include "tests/support/Archives.h"
#include "tests/support/Dates.h"

#include <array>
#include <gtest/gtest.h>

namespace ridelog {
namespace {

using Record = std::array<char, 4>;

/// A list of `count` levels, each the only element of the one around it.
QByteArray nestedLists(int count)
{
    return written([=](TypedStreamWriter& out) {
        for (int level = 0; level < count; ++level)
            out.beginArray(level + 1 < count ? 1 : 0);
        for (int level = 0; level < count; ++level)
            out.endObject();
    });
}

/// Each of `levels` lists holds the one before it twice. Answers the archive; the last list is the last
/// value.
QByteArray doublingLists(int levels)
{
    return written([=](TypedStreamWriter& out) {
        std::uint32_t inner = out.writeString(u"lol");
        for (int level = 0; level < levels; ++level) {
            const auto list = out.beginObject(ArchiveClasses::mutableArray);
            out.group("i");
            out.putInteger(2);
            out.writeReference(inner);
            out.writeReference(inner);
            out.endObject();
            inner = list;
        }
    });
}

/// Pulls lists in lists, and leaves out what else is in them.
void readLists(TypedStreamReader& in)
{
    const auto* objectClass = in.nextClass();
    if (objectClass && objectClass->isKindOf("NSArray"))
        in.readArray([&](qsizetype) { readLists(in); });
    else
        in.skip();
}

TEST(TypedStreamReader, PullsValuesOverTheBordersOfGroups)
{
    const auto bytes = written([](TypedStreamWriter& out) {
        out.group("iI");
        out.putInteger(-5);
        out.putInteger(300);
        out.group("f");
        out.putFloat(0.5F);
        out.group("d");
        out.putDouble(7);
        out.group("[3c]");
        out.putBytes("abc");
        out.group("*");
        out.putCString("name");
    });
    TypedStreamReader in(bytes);
    EXPECT_EQ(in.nextType(), 'i');
    EXPECT_EQ(in.readInteger(), -5);
    EXPECT_EQ(in.readInteger(), 300);
    EXPECT_EQ(in.readReal(), 0.5);
    EXPECT_EQ(in.readReal(), 7);
    EXPECT_EQ(in.readBytes(), QByteArrayView("abc"));
    EXPECT_EQ(in.readCString(), QByteArrayView("name"));
    EXPECT_TRUE(in.atEnd());
    EXPECT_FALSE(in.failed());
}

TEST(TypedStreamReader, UnsignedNumbersMayBeStoredSignExtended)
{
    const auto bytes = archiveOf(bytesOf("84 02 51 49 FD FF"));
    TypedStreamReader in(bytes);
    EXPECT_EQ(in.readReal(), 18446744073709551613.0);
    EXPECT_EQ(in.readInteger(), -1);
    EXPECT_EQ(refusalOf(archiveOf(bytesOf("84 01 73 82 FF FF 00 00"))),
              "the integer 65535 does not fit its type at byte 19");
    EXPECT_EQ(refusalOf(archiveOf(bytesOf("84 01 53 82 FF FF 00 00"))), "");
}

TEST(TypedStreamReader, NumbersKeepTheirType)
{
    const auto bytes = written([](TypedStreamWriter& out) {
        out.writeNumber(ArchiveNumber(true));
        out.writeNumber(ArchiveNumber(qint64{1} << 40));
        out.writeNumber(ArchiveNumber(2.5F));
        out.writeNumber(ArchiveNumber('S', qint64{65535}));
        out.writeString(u"no number");
        out.writeNil();
        out.writeNumber(ArchiveNumber(3.0));
    });
    TypedStreamReader in(bytes);
    EXPECT_EQ(in.readNumber(), ArchiveNumber(true));
    EXPECT_EQ(in.readNumber(), ArchiveNumber('q', qint64{1} << 40));
    EXPECT_EQ(in.readNumber(), ArchiveNumber(2.5F));
    EXPECT_EQ(in.readNumber(), ArchiveNumber('S', qint64{65535}));
    EXPECT_EQ(in.readNumber(), std::nullopt);
    EXPECT_EQ(in.readNumber(), std::nullopt);
    EXPECT_EQ(in.readNumber()->type(), 'd');
    EXPECT_FALSE(in.failed());
}

TEST(TypedStreamReader, WhatIsNotReadIsLeftOut)
{
    const auto bytes = written([](TypedStreamWriter& out) {
        out.beginDictionary(3);
        out.writeString(u"unknown");
        out.beginArray(1);
        out.writeConstant(QStringLiteral("inside"));
        out.endObject();
        out.writeNumber(ArchiveNumber(1));
        out.writeString(u"under a key that is no text");
        out.writeString(u"known");
        out.writeConstant(QStringLiteral("inside"));
        out.endObject();
        out.writeString(u"after");
    });
    TypedStreamReader in(bytes);
    QStringList keys;
    QString value;
    EXPECT_EQ(in.nextClass()->name, "NSMutableDictionary");
    EXPECT_TRUE(in.readDictionary([&](const QString& key) {
        keys << key;
        if (key == u"known")
            value = in.readString().value_or(QString());
    }));
    EXPECT_EQ(keys, QStringList({QStringLiteral("unknown"), QStringLiteral("known")}));
    EXPECT_EQ(value.toStdString(), "inside") << "the text stands in what was left out";
    EXPECT_EQ(in.readString(), QStringLiteral("after"));
}

TEST(TypedStreamReader, ListsAndBlocksMayBeReferences)
{
    const std::vector<Record> records = {{'a'}, {'b'}, {'c'}};
    std::uint32_t list = 0;
    const auto bytes = written([&](TypedStreamWriter& out) {
        list = out.beginObject(ArchiveClasses::array);
        out.group("i");
        out.putInteger(5);
        for (const auto& record : records)
            out.writeData({record.data(), 4});
        out.writeReference(list + 3); // the first block: behind the list and its two classes
        out.writeNil();
        out.endObject();
    });
    TypedStreamReader in(bytes);
    EXPECT_FALSE(in.readRecords<Record>());
    EXPECT_EQ(in.error()->what.toStdString(), "a data block of 4 bytes expected");

    const auto shared = written([&](TypedStreamWriter& out) {
        out.beginArray(3);
        list = out.beginObject(ArchiveClasses::array);
        out.group("i");
        out.putInteger(4);
        for (const auto& record : records)
            out.writeData({record.data(), 4});
        out.writeReference(list + 1);
        out.endObject();
        out.writeReference(list);
        out.writeReference(list);
        out.endObject();
    });
    TypedStreamReader again(shared);
    const std::vector<Record> expected = {{'a'}, {'b'}, {'c'}, {'a'}};
    EXPECT_TRUE(again.readArray([&](qsizetype) { EXPECT_EQ(again.readRecords<Record>(), expected); }));
    EXPECT_TRUE(again.atEnd());
}

TEST(TypedStreamReader, BlocksOfOtherSizesAndSurplusValuesAreNotMistaken)
{
    const auto bytes = written([](TypedStreamWriter& out) {
        out.beginArray(4);
        for (const char first : {'a', 'b', 'c', 'd'}) {
            out.beginObject(ArchiveClasses::data);
            out.group("i");
            out.putInteger(4);
            out.group("[4c]");
            out.putBytes(QByteArray(4, first));
            out.group("c"); // surplus: nothing a block has
            out.putByte(first);
            out.endObject();
        }
        out.endObject();
        out.beginArray(3);
        out.writeData("1234");
        out.writeData("5678");
        out.writeData("90");
        out.endObject();
    });
    TypedStreamReader in(bytes);
    const std::vector<Record> expected = {
        {'a', 'a', 'a', 'a'}, {'b', 'b', 'b', 'b'}, {'c', 'c', 'c', 'c'}, {'d', 'd', 'd', 'd'}};
    EXPECT_EQ(in.readRecords<Record>(), expected);
    EXPECT_FALSE(in.readRecords<Record>());
    EXPECT_TRUE(in.failed());
}

TEST(TypedStreamReader, DatesKnowTheirZone)
{
    const auto date = [](const char* zone) {
        const auto bytes = written([&](TypedStreamWriter& out) {
            out.beginObject(ArchiveClasses::calendarDate);
            out.group("d");
            out.putDouble(195202801.5);
            out.group("@@"); // two objects in one group are as good as in two
            out.putObject(ArchiveClasses::timeZone);
            out.writeString(QString::fromLatin1(zone));
            out.endObject();
            out.putNil();
            out.endObject();
        });
        TypedStreamReader in(bytes);
        return CalendarDate::text(in.readObject().toDate().value()).toStdString();
    };
    EXPECT_EQ(date("Europe/Berlin"), "2007-03-10 08:00:01 +0100");
    EXPECT_EQ(date("GMT-0430"), "2007-03-10 02:30:01 -0430");
    EXPECT_EQ(date("GMT"), "2007-03-10 07:00:01 +0000");
    EXPECT_EQ(date("PST"), "2007-03-09 23:00:01 -0800");
    EXPECT_EQ(date("CEST"), "2007-03-10 08:00:01 +0100") << "the zone's, whatever its clocks showed";
    EXPECT_EQ(date("FOO"), date("Nowhere/Bogus")) << "no rule at Greenwich, but the reader's own zone";
    const auto local =
        QDateTime(QDate(2007, 3, 10), QTime(7, 0, 1), Qt::UTC).toTimeZone(CalendarDate::localTimeZone());
    EXPECT_EQ(date("Nowhere/Atall"), CalendarDate::text(local).toStdString());

    const auto written7 = written([](TypedStreamWriter& out) { out.writeDate(berlin(2007, 7, 1)); });
    EXPECT_EQ(TypedStreamReader(written7).readObject().toDate(), berlin(2007, 7, 1));
    const auto nonsense = written([](TypedStreamWriter& out) {
        out.beginObject(ArchiveClasses::date);
        out.group("d");
        out.putDouble(1e300);
        out.endObject();
    });
    EXPECT_EQ(TypedStreamReader(nonsense).readObject().toDate(), std::nullopt);
}

TEST(TypedStreamReader, ClassCodeReadsVersionsAndRefuses)
{
    const ArchiveClass animal{"Animal", 3, &ArchiveClasses::object};
    const ArchiveClass cat{"Cat", 7, &animal};
    const auto bytes = written([&](TypedStreamWriter& out) {
        out.beginObject(cat);
        out.endObject();
    });
    TypedStreamReader in(bytes);
    const auto* objectClass = in.openObject();
    ASSERT_TRUE(objectClass);
    EXPECT_TRUE(objectClass->isKindOf("NSObject"));
    EXPECT_EQ(objectClass->versionOf("Animal"), 3);
    EXPECT_EQ(objectClass->versionOf("Dog"), std::nullopt);
    in.fail(QStringLiteral("no cats"));
    in.fail(QStringLiteral("a later error"));
    in.closeObject();
    EXPECT_EQ(in.error()->what.toStdString(), "no cats");
    EXPECT_TRUE(in.atEnd());
    EXPECT_EQ(in.readInteger(), 0);
}

TEST(TypedStreamReader, RingsCanBeKeptComparedAndWritten)
{
    const auto ring = [](const QString& text) {
        return written([&](TypedStreamWriter& out) {
            const auto list = out.beginObject(ArchiveClasses::mutableArray);
            out.group("i");
            out.putInteger(2);
            out.writeString(text);
            out.writeReference(list);
            out.endObject();
        });
    };
    const auto bytes = ring(QStringLiteral("same"));
    EXPECT_EQ(rewritten(bytes), bytes);
    const auto kept = TypedStreamReader(bytes).readObject();
    EXPECT_TRUE(kept.toItems()->at(1).isSameObject(kept));
    EXPECT_TRUE(kept == TypedStreamReader(bytes).readObject());
    const auto other = ring(QStringLiteral("other"));
    EXPECT_FALSE(kept == TypedStreamReader(other).readObject());

    TypedStreamReader in(bytes);
    readLists(in);
    EXPECT_EQ(in.error()->what.toStdString(), "an object that contains itself");

    // The value that refers to its own surroundings is kept while those are only half read.
    TypedStreamReader half(bytes);
    half.readArray([&](qsizetype index) {
        if (index == 1) {
            EXPECT_EQ(half.readObject().toItems()->at(0).toText(), QStringLiteral("same"));
        }
    });
    EXPECT_TRUE(half.atEnd());
    EXPECT_FALSE(half.failed());
}

// Hostile archives

struct Refused {
    const char* name;
    const char* contents; ///< behind the header, in hex
    const char* error;
};

class TypedStreamRefused : public testing::TestWithParam<Refused> {};

TEST_P(TypedStreamRefused, WithReasonAndPlace)
{
    EXPECT_EQ(refusalOf(archiveOf(bytesOf(GetParam().contents))), GetParam().error);
}

INSTANTIATE_TEST_SUITE_P(
    Archives, TypedStreamRefused,
    testing::Values(
        Refused{"TextOf2GB", "84 01 2B 82 FF FF FF 7F", "2147483647 bytes wanted, 0 left at byte 24"},
        Refused{"NegativeLength", "84 01 2B FF", "negative length -1 at byte 20"},
        Refused{"TypeStringOf2GB", "84 82 FF FF FF 7F", "2147483647 bytes wanted, 0 left at byte 22"},
        Refused{"BlockOf4GB", "84 0D 5B 34 32 39 34 39 36 37 32 39 35 63 5D",
                "4294967295 bytes wanted, 0 left at byte 31"},
        Refused{"LaterObject", "84 01 40 93", "reference to an entry that is not there at byte 19"},
        Refused{"FarReference", "84 01 40 87 FF FF FF FF FF FF FF 7F",
                "reference to an entry that is not there at byte 19"},
        Refused{"TypeStringNotThere", "93", "reference to an entry that is not there at byte 16"},
        Refused{"ClassThatIsAnObject", "84 01 40 84 92", "reference to an entry of another kind at byte 21"},
        Refused{"ObjectThatIsAClass", "84 02 40 40 84 84 84 01 41 00 85 86 93",
                "reference to an entry of another kind at byte 28"},
        Refused{"ClassAboveItself", "84 01 40 84 84 84 01 41 00 93",
                "reference to an entry of another kind at byte 26"},
        Refused{"NoClass", "84 01 40 84 85 86", "an object without a class at byte 21"},
        Refused{"EndlessArrayOfNothing", "84 0C 5B 39 39 39 39 39 39 39 39 39 21 5D",
                "no type string of values that can be read at byte 16"},
        Refused{"EndlessArrayOfEmptyStructures", "84 07 5B 39 39 39 7B 7D 5D",
                "no type string of values that can be read at byte 16"},
        Refused{"Union", "84 04 28 3F 3D 69", "no type string of values that can be read at byte 16"},
        Refused{"UnusedMark", "84 01 69 88", "an integer expected, not the mark 0x88 at byte 19"},
        Refused{"EndOutside", "86", "the end of an object that was not begun at byte 16"},
        Refused{"CutObject", "84 01 40 84 84 84 01 41 00 85", "1 bytes wanted, 0 left at byte 26"}),
    [](const auto& test) { return test.param.name; });

TEST(TypedStreamReader, RefusesWhatIsNoTypedStream)
{
    EXPECT_EQ(refusalOf({}), "no typed stream at byte 0");
    EXPECT_EQ(refusalOf("bplist00 and so on"), "no typed stream at byte 0");
    EXPECT_EQ(refusalOf(QByteArray("\x03\x0Bstreamtyped\x81\xE8\x03", 16)),
              "typed stream of unknown version 3 at byte 0");
    EXPECT_EQ(refusalOf(QByteArray("\x04\x0Bstreamtyped\x81\xE8", 15)), "2 bytes wanted, 1 left at byte 14");
}

TEST(TypedStreamReader, NestingIsBounded)
{
    EXPECT_EQ(refusalOf(nestedLists(200)), "");
    const auto deep = nestedLists(100'000);
    EXPECT_EQ(refusalOf(deep).substr(0, 35), "objects nested more than 200 deep a");
    TypedStreamReader pulled(deep);
    readLists(pulled);
    EXPECT_TRUE(pulled.failed());
    TypedStreamReader skipped(deep);
    skipped.skip();
    EXPECT_TRUE(skipped.failed());
}

TEST(TypedStreamReader, ChainsOfReferencesAreFollowedWithoutRecursion)
{
    constexpr int length = 100'000;
    std::uint32_t last = 0;
    const auto bytes = written([&](TypedStreamWriter& out) {
        for (int link = 0; link < length; ++link) {
            const auto previous = last;
            last = out.beginObject(ArchiveClasses::array);
            out.group("i");
            out.putInteger(link == 0 ? 0 : 1);
            if (link > 0)
                out.writeReference(previous);
            out.endObject();
        }
        out.writeReference(last);
    });
    EXPECT_EQ(rewritten(bytes), bytes);
    const auto lastOf = [&] {
        TypedStreamReader in(bytes);
        for (int link = 0; link < length; ++link)
            in.skip();
        return in.readObject();
    };
    EXPECT_TRUE(lastOf() == lastOf());
    // Written on its own the chain would be nested; it ends where no reader would follow.
    const auto alone = written([&](TypedStreamWriter& out) { out.writeObject(lastOf()); });
    EXPECT_EQ(refusalOf(alone), "");
}

TEST(TypedStreamReader, ReferencesCannotMultiplyWithoutEnd)
{
    const auto bomb = doublingLists(60);
    EXPECT_EQ(rewritten(bomb), bomb);
    EXPECT_TRUE(TypedStreamReader(bomb).readArchive() == TypedStreamReader(bomb).readArchive());
    TypedStreamReader in(bomb);
    while (!in.atEnd())
        readLists(in);
    EXPECT_EQ(in.error()->what.toStdString(), "references to the same objects over and over again");

    // One long text behind every reference is decoded once.
    const auto texts = written([](TypedStreamWriter& out) {
        out.beginArray(20'000);
        const auto text = out.writeString(QString(1'000'000, u'x'));
        for (int copy = 1; copy < 20'000; ++copy)
            out.writeReference(text);
        out.endObject();
    });
    TypedStreamReader shared(texts);
    qsizetype length = 0;
    EXPECT_TRUE(shared.readArray([&](qsizetype) { length += shared.readString()->size(); }));
    EXPECT_EQ(length, 20'000'000'000);
}

/// Reads in every way that there is. What matters is that it ends.
void readInEveryWay(const QByteArray& bytes)
{
    rewritten(bytes);
    TypedStreamReader pulled(bytes);
    while (!pulled.atEnd())
        readLists(pulled);
    TypedStreamReader records(bytes);
    records.readDictionary([&](const QString&) { records.readRecords<Record>(); });
}

QByteArray smallLibrary()
{
    return written([](TypedStreamWriter& out) {
        const std::vector<Record> records = {{'a'}, {'b'}, {'c'}};
        out.beginDictionary(4);
        out.writeConstant(QStringLiteral("tourData"));
        out.writeRecords(std::span(records));
        out.writeConstant(QStringLiteral("number"));
        out.writeNumber(ArchiveNumber(0.1));
        out.writeConstant(QStringLiteral("date"));
        out.writeDate(berlin(2007, 3, 10));
        out.writeConstant(QStringLiteral("number"));
        out.writeConstant(QStringLiteral("date"));
        out.endObject();
    });
}

TEST(TypedStreamReader, ArchivesCutAnywhereAreRefused)
{
    const auto whole = smallLibrary();
    EXPECT_EQ(refusalOf(whole), "");
    for (qsizetype length = 0; length < whole.size(); ++length) {
        // Behind the header the archive is empty, and complete.
        EXPECT_EQ(refusalOf(whole.first(length)).empty(), length == 16) << length;
        readInEveryWay(whole.first(length));
    }
}

TEST(TypedStreamReader, ArchivesWithAnyByteChangedAreReadOrRefused)
{
    const auto whole = smallLibrary();
    // Counts, type letters, every mark, references, the ends of their ranges.
    const auto bytes = bytesOf(
        "00 01 02 10 23 25 2A 2B 40 5B 5D 64 69 7B 7F 80 81 82 83 84 85 86 87 88 92 93 94 95 98 A0 FE FF");
    for (qsizetype place = 0; place < whole.size(); ++place) {
        for (const char byte : bytes) {
            auto changed = whole;
            changed[place] = byte;
            readInEveryWay(changed);
        }
    }
}

} // namespace
} // namespace ridelog
