#include "platform/TypedStreamWriter.h"

#include "tests/support/Archives.h"
#include "tests/support/Dates.h"

#include <gtest/gtest.h>
#include <limits>

namespace ridelog {
namespace {

std::string hex(const QByteArray& bytes)
{
    return bytes.toHex(' ').toStdString();
}

/// A dictionary { "min": 42 }.
const char* const dictionaryBytes =
    "04 0B 73 74 72 65 61 6D 74 79 70 65 64 81 E8 03 84 01 40 84 84 84 0C 4E 53 44 69 63 74 69 6F 6E 61 72 "
    "79 00"
    "84 84 08 4E 53 4F 62 6A 65 63 74 00 85 84 01 69 01 92 84 84 84 08 4E 53 53 74 72 69 6E 67 01 94 84 01 2B"
    "03 6D 69 6E 86 92 84 84 84 08 4E 53 4E 75 6D 62 65 72 00 84 84 07 4E 53 56 61 6C 75 65 00 94 84 01 2A "
    "84 95"
    "95 2A 86 86";

TEST(TypedStreamWriter, DictionaryOfOneNumber)
{
    const auto bytes = written([](TypedStreamWriter& out) {
        out.beginDictionary(1, ArchiveClasses::dictionary);
        out.writeConstant(QStringLiteral("min"));
        out.writeNumber(ArchiveNumber(42));
        out.endObject();
    });
    EXPECT_EQ(hex(bytes), hex(bytesOf(dictionaryBytes)));
    EXPECT_EQ(hex(rewritten(bytes)), hex(bytes));
}

TEST(TypedStreamWriter, ConstantsAreSharedAndOtherStringsAreNot)
{
    const auto common =
        bytesOf("84 01 40 84 84 84 07 4E 53 41 72 72 61 79 00 84 84 08 4E 53 4F 62 6A 65 63 74 00 85"
                "84 01 69 02 92 84 84 84 08 4E 53 53 74 72 69 6E 67 01 94 84 01 2B 02 61 62 86");
    const auto ab = QStringLiteral("ab");
    EXPECT_EQ(hex(written([&](TypedStreamWriter& out) {
                  out.beginArray(2, ArchiveClasses::array);
                  out.writeConstant(ab);
                  out.writeConstant(ab);
                  out.endObject();
              })),
              hex(archiveOf(common + bytesOf("92 95 86"))));
    EXPECT_EQ(hex(written([&](TypedStreamWriter& out) {
                  out.beginArray(2, ArchiveClasses::array);
                  out.writeString(ab);
                  out.writeString(ab);
                  out.endObject();
              })),
              hex(archiveOf(common + bytesOf("92 84 96 97 02 61 62 86 86"))));
}

TEST(TypedStreamWriter, CalendarDateWithItsZone)
{
    const auto expected = bytesOf(
        "84 01 40 84 84 84 0E 4E 53 43 61 6C 65 6E 64 61 72 44 61 74 65 00 84 84 06 4E 53 44 61 74 65 00"
        "84 84 08 4E 53 4F 62 6A 65 63 74 00 85 84 01 64 82 F0 8E A2 0B 92 84 84 84 0A 4E 53 54 69 6D 65 5A"
        "6F 6E 65 00 95 92 84 84 84 08 4E 53 53 74 72 69 6E 67 01 95 84 01 2B 0D 45 75 72 6F 70 65 2F 42 65"
        "72 6C 69 6E 86 86 92 84 99 99 14 25 59 2D 25 6D 2D 25 64 20 25 48 3A 25 4D 3A 25 53 20 25 7A 86 86");
    EXPECT_EQ(hex(written([](TypedStreamWriter& out) { out.writeDate(berlin(2007, 3, 10, 8)); })),
              hex(archiveOf(expected)));
}

TEST(TypedStreamWriter, BigEndianLibraryWithoutTours)
{
    const auto expected =
        bytesOf("04 0B 74 79 70 65 64 73 74 72 65 61 6D 81 03 E8 84 01 40 84 84 84 13 4E 53 4D 75 74 61 62 "
                "6C 65 44 69"
                "63 74 69 6F 6E 61 72 79 00 84 84 0C 4E 53 44 69 63 74 69 6F 6E 61 72 79 00 84 84 08 4E 53 "
                "4F 62 6A 65"
                "63 74 00 85 84 01 69 02 92 84 84 84 08 4E 53 53 74 72 69 6E 67 01 95 84 01 2B 0B 67 65 6E "
                "65 72 61 6C"
                "44 61 74 61 86 92 84 93 96 00 86 92 84 97 98 0A 74 6F 75 72 73 41 72 72 61 79 86 92 84 84 "
                "84 0E 4E 53"
                "4D 75 74 61 62 6C 65 41 72 72 61 79 00 84 84 07 4E 53 41 72 72 61 79 00 95 96 00 86 86");
    EXPECT_EQ(hex(written(
                  [](TypedStreamWriter& out) {
                      out.beginDictionary(2);
                      out.writeConstant(QStringLiteral("generalData"));
                      out.beginDictionary(0);
                      out.endObject();
                      out.writeConstant(QStringLiteral("toursArray"));
                      out.beginArray(0);
                      out.endObject();
                      out.endObject();
                  },
                  std::endian::big)),
              hex(expected));
}

TEST(TypedStreamWriter, IntegersTakeTheShortestForm)
{
    const auto form = [](qint64 number) {
        return hex(written([=](TypedStreamWriter& out) { out.putInteger(number); }).sliced(16));
    };
    EXPECT_EQ(form(127), "7f");
    EXPECT_EQ(form(128), "81 80 00");
    EXPECT_EQ(form(200), "81 c8 00");
    EXPECT_EQ(form(-110), "92");
    EXPECT_EQ(form(-111), "81 91 ff");
    EXPECT_EQ(form(32768), "82 00 80 00 00");
    EXPECT_EQ(form(-1099511627776), "87 00 00 00 00 00 ff ff ff");
}

TEST(TypedStreamWriter, RealNumbersAreIntegersWhereSinglePrecisionHoldsThem)
{
    const auto real = [](auto put) { return hex(written(put).sliced(16)); };
    using Out = TypedStreamWriter;
    EXPECT_EQ(real([](Out& out) { out.putFloat(3.5F); }), "83 00 00 60 40");
    EXPECT_EQ(real([](Out& out) { out.putFloat(65535); }), "82 ff ff 00 00");
    EXPECT_EQ(real([](Out& out) { out.putDouble(195202800); }), "82 f0 8e a2 0b");
    EXPECT_EQ(real([](Out& out) { out.putDouble(195202801); }), "83 00 00 00 e2 1d 45 a7 41");
    EXPECT_EQ(real([](Out& out) { out.putDouble(-0.0); }), "83 00 00 00 00 00 00 00 80")
        << "a sign would be lost";
    EXPECT_EQ(real([](Out& out) { out.putFloat(std::numeric_limits<float>::infinity()); }), "83 00 00 80 7f");
}

TEST(TypedStreamWriter, ReferencesGrowBeyondOneByte)
{
    const auto bytes = written([](TypedStreamWriter& out) {
        out.beginArray(300);
        for (int index = 0; index < 298; ++index)
            out.writeConstant(QString::number(index));
        out.writeConstant(QStringLiteral("232"));
        out.writeConstant(QStringLiteral("233"));
        out.endObject();
    });
    EXPECT_TRUE(bytes.endsWith(bytesOf("92 7f 92 81 80 00 86"))) << hex(bytes.last(8));
    EXPECT_EQ(hex(rewritten(bytes)), hex(bytes));
    TypedStreamReader in(bytes);
    QString last;
    EXPECT_TRUE(in.readArray([&](qsizetype) { last = in.readString().value_or(QString()); }));
    EXPECT_EQ(last.toStdString(), "233");
}

TEST(TypedStreamWriter, ListsOfRecordsAreThoseOfSingleBlocks)
{
    const std::vector<std::array<char, 20>> records = {{{1}}, {{2}}, {{3}}, {{4}}};
    const auto inOne = written([&](TypedStreamWriter& out) {
        out.writeRecords(std::span(records));
        out.writeRecords(std::span(records));
        out.writeString(u"after");
    });
    const auto oneByOne = written([&](TypedStreamWriter& out) {
        for (int list = 0; list < 2; ++list) {
            out.beginArray(4);
            for (const auto& record : records)
                out.writeData({record.data(), 20});
            out.endObject();
        }
        out.writeString(u"after");
    });
    EXPECT_EQ(hex(inOne), hex(oneByOne));
    TypedStreamReader in(inOne);
    EXPECT_EQ((in.readRecords<std::array<char, 20>>()), records);
    EXPECT_EQ((in.readRecords<std::array<char, 20>>()), records);
    EXPECT_EQ(in.readString(), QStringLiteral("after"));
}

TEST(TypedStreamWriter, KeptObjectsStaySharedBetweenPlaces)
{
    const auto source = written([](TypedStreamWriter& out) {
        out.beginArray(3);
        const auto text = out.writeString(u"shared");
        out.beginArray(1);
        out.writeReference(text);
        out.endObject();
        out.writeString(u"shared");
        out.endObject();
    });
    TypedStreamReader in(source);
    std::vector<ArchiveObject> kept;
    ASSERT_TRUE(in.readArray([&](qsizetype) { kept.push_back(in.readObject()); }));
    const auto again = written([&](TypedStreamWriter& out) {
        out.beginArray(3);
        for (const auto& object : kept)
            out.writeObject(object);
        out.endObject();
    });
    EXPECT_EQ(hex(again), hex(source));
}

} // namespace
} // namespace ridelog
