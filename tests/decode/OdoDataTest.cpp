#include "decode/OdoData.h"

#include "simulator/DumpWriter.h"
#include "tests/support/LogCapture.h"
#include "tests/support/TemporaryFolder.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ridelog {
namespace {

TEST(OdoDataDigits, HexFieldsAreSigned)
{
    EXPECT_EQ(OdoData::HexToInt('F', 'F', 'F', 'F'), -1);
    EXPECT_EQ(OdoData::HexToInt('8', '0', '0', '0'), -32768);
    EXPECT_EQ(OdoData::HexToInt('F', 'F', 'F', '6'), -10);
    EXPECT_EQ(OdoData::HexToInt('0', '2', '2', '6'), 550);
    EXPECT_EQ(OdoData::HexToInt2('F', 'F'), 255);
    EXPECT_EQ(OdoData::HexToInt2('0', '9'), 9);
}

TEST(OdoDataDigits, AnyCharacterCountsByItsCode)
{
    EXPECT_EQ(OdoData::HexToInt2('0', 'a'), 42) << "a small letter is no digit";
    EXPECT_EQ(OdoData::HexToInt2('0', '@'), 16);
    EXPECT_EQ(OdoData::HexToInt2('0', ' '), -16);
    // 200 − 55 = 145, which a signed byte holds as −111.
    EXPECT_EQ(OdoData::HexToInt2('0', static_cast<char>(200)), -111);
    EXPECT_EQ(OdoData::HexToInt2(static_cast<char>(200), '0'), -1776);
    EXPECT_EQ(OdoData::HexToInt('z', 'z', 'z', 'z'), static_cast<std::int16_t>(67 * 0x1111));
    EXPECT_EQ(OdoData::DecToInt2('0', 'A'), 17);
    EXPECT_EQ(OdoData::DecToInt2('0', static_cast<char>(0xFF)), static_cast<std::int8_t>(0xFF - 48));
}

TEST(OdoDataDigits, DecimalFields)
{
    EXPECT_EQ(OdoData::DecToInt2('0', '9'), 9);
    EXPECT_EQ(OdoData::DecToInt2('5', '9'), 59);
    EXPECT_EQ(OdoData::DecToInt('2', '0', '0', '7'), 2007);
}

/// A dump without tours in which `digits` stand at `offset`.
OdoData dumpWith(int offset, const QByteArray& digits)
{
    auto dump = DumpWriter().dump();
    dump.replace(offset, digits.size(), digits);
    return OdoData::initWithData(dump);
}

TEST(OdoDataGeneralData, EveryFieldStandsAtItsPlace)
{
    GeneralData written;
    std::int32_t value = 3;
    for (const auto& field : DumpLayout::generalDataFields) {
        const bool pair = field.kind == DumpLayout::FieldKind::decimalPair;
        written.insert(field.name.toString(), pair ? value % 100 : value * 5);
        value += 7;
    }
    written[QStringLiteral("Home Altitude")] = -10;
    written[QStringLiteral("Year")] = 2007;
    EXPECT_EQ(OdoData::initWithData(DumpWriter(written).dump()).generalDataDict(), written);

    EXPECT_EQ(dumpWith(660, "FFF6").generalDataDict()[QStringLiteral("Home Altitude")], -10);
    EXPECT_EQ(dumpWith(690, "1234").generalDataDict()[QStringLiteral("2nd countdown (m)")], 34);
    EXPECT_EQ(dumpWith(720, "0931").generalDataDict()[QStringLiteral("Day")], 31);
    EXPECT_EQ(dumpWith(740, "1234").generalDataDict()[QStringLiteral("total travel time (h100)")], 34);
}

TEST(OdoDataGeneralData, AddressesBecomeDumpOffsets)
{
    const auto offsetOf = [](const char* digits) {
        return dumpWith(750, digits).generalDataDict()[QStringLiteral("offset last CC record")];
    };
    EXPECT_EQ(offsetOf("0000"), 5);
    EXPECT_EQ(offsetOf("0001"), 7);
    EXPECT_EQ(offsetOf("7FFF"), 81922);
    EXPECT_EQ(offsetOf("8000"), -81915);
    EXPECT_EQ(offsetOf("FFFF"), 2) << "truncated towards zero";
    for (int address = -32768; address <= 32767; ++address) {
        const auto word = static_cast<std::int16_t>(address);
        ASSERT_EQ(DumpLayout::addressOfOffset(DumpLayout::offsetOfAddress(word)), word);
    }
}

TEST(OdoDataGeneralData, OddCharactersAreNoError)
{
    const auto data = dumpWith(650, QByteArray(115, ' '));
    EXPECT_EQ(data.generalDataDict().size(), 28);
    EXPECT_TRUE(data.refusal().isEmpty());
}

TEST(OdoDataRefusal, SizeIsCheckedFirst)
{
    const LogCapture log;
    const auto dump = DumpWriter().dump();
    ASSERT_EQ(dump.size(), 81930);
    EXPECT_TRUE(OdoData::initWithData(dump).refusal().isEmpty());
    EXPECT_TRUE(log.errors().isEmpty());

    const auto shortDump = OdoData::initWithData(dump.left(81929));
    EXPECT_TRUE(shortDump.generalDataDict().isEmpty());
    EXPECT_TRUE(shortDump.toursArray().empty());
    EXPECT_EQ(shortDump.refusal().toStdString(), "not a raw dump: 81,929 bytes, at least 81,930 are needed");
    EXPECT_EQ(log.errors(), QStringList(QStringLiteral("[parseData] wrong Datasize")));
}

TEST(OdoDataRefusal, WrongSignatureIsNotLogged)
{
    const LogCapture log;
    auto dump = DumpWriter().dump();
    dump.replace(0, 4, "ORFA");
    const auto refused = OdoData::initWithData(dump);
    EXPECT_TRUE(refused.generalDataDict().isEmpty());
    EXPECT_EQ(refused.refusal().toStdString(), "not a raw dump: it does not begin with \"AFRO\"");
    EXPECT_TRUE(log.lines().isEmpty());
}

TEST(OdoDataRefusal, SomethingElseBehindTheSignature)
{
    QByteArray garbage = "AFRO " + QByteArray(81925, '?');
    const auto refused = OdoData::initWithData(garbage);
    EXPECT_EQ(refused.refusal().toStdString(),
              "not a raw dump: no record and no hexadecimal digits at byte 765");
    EXPECT_TRUE(refused.generalDataDict().isEmpty());
    EXPECT_TRUE(dumpWith(70000, "~").refusal().isEmpty()) << "noise in an empty memory is still a memory";
}

class OdoDataFile : public testing::Test, protected TemporaryFolder {
protected:
    static std::string refusalOf(const QString& file)
    {
        return OdoData::initWithFile(file).refusal().toStdString();
    }
};

TEST_F(OdoDataFile, IsReadWhole)
{
    const auto dump = DumpWriter().dump() + "and more";
    EXPECT_EQ(OdoData::initWithFile(write("dump.odo", dump)).data(), dump);
}

TEST_F(OdoDataFile, ThatCannotBeReadIsLoggedAndRefused)
{
    const LogCapture log;
    EXPECT_EQ(refusalOf(path("missing")), "No such file or directory");
    EXPECT_EQ(log.errors().front(), QStringLiteral("Could not load file: ") + path("missing"));
    EXPECT_EQ(log.errors().back(), QStringLiteral("[parseData] wrong Datasize"));
    EXPECT_EQ(refusalOf(path("")), "it is a folder");
    EXPECT_EQ(refusalOf(write("empty", {})), "not a raw dump: 0 bytes, at least 81,930 are needed");

    ASSERT_EQ(mkfifo(qPrintable(path("pipe")), 0600), 0);
    EXPECT_EQ(refusalOf(path("pipe")), "it is not a regular file");
    EXPECT_EQ(refusalOf(QStringLiteral("/dev/zero")), "it is not a regular file");
}

TEST_F(OdoDataFile, LargerThanAMebibyteIsNotRead)
{
    QFile file(path("huge"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.resize(OdoData::largestFile + 1));
    EXPECT_EQ(refusalOf(file.fileName()),
              "not a raw dump: 1,048,577 bytes, a dump has no more than 1,048,576");
    ASSERT_TRUE(file.resize(OdoData::largestFile));
    EXPECT_EQ(refusalOf(file.fileName()), "not a raw dump: it does not begin with \"AFRO\"");
}

TEST_F(OdoDataFile, WithoutPermissionSaysSo)
{
    if (geteuid() == 0)
        GTEST_SKIP() << "everything is readable to root";
    const auto file = write("secret", DumpWriter().dump());
    ASSERT_TRUE(QFile::setPermissions(file, {}));
    EXPECT_EQ(refusalOf(file), "Permission denied");
}

} // namespace
} // namespace ridelog
