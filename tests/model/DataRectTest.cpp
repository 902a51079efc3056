#include "model/DataRect.h"

#include <array>
#include <cstring>
#include <gtest/gtest.h>

namespace ridelog {
namespace {

DataRect rectOf(const char* hex)
{
    const auto bytes = QByteArray::fromHex(hex);
    DataRect rect;
    std::memcpy(&rect, bytes.constData(), sizeof rect);
    return rect;
}

TEST(DataRect, BytesStandAsDocumentsKeepThem)
{
    const DataRect rect{.temperature = 18,
                        .endMarker = 45,
                        .cadence = 80,
                        .pulseChange = 2,
                        .altitudeChange = -4,
                        .distance = 150,
                        .lastData = 1};
    EXPECT_EQ(rect.toHex(), "12002d0050000200fcff00009600000000010000");
    EXPECT_EQ(rectOf("12002d0050000200fcff00009600000000010000"), rect);
}

TEST(DataRect, BigEndianRecordsAreConverted)
{
    std::array records{rectOf("0102002d0050fffe0004abcd0000009605ff1234")};
    convertFromBigEndian(records);
    EXPECT_EQ(records[0].temperature, 258);
    EXPECT_EQ(records[0].endMarker, 45);
    EXPECT_EQ(records[0].cadence, 80);
    EXPECT_EQ(records[0].pulseChange, -2);
    EXPECT_EQ(records[0].altitudeChange, 4);
    EXPECT_EQ(records[0].distance, 150);
    EXPECT_EQ(records[0].toHex().mid(20, 4), "abcd") << "unused bytes stay";
    EXPECT_EQ(records[0].toHex().right(8), "01011234");
}

} // namespace
} // namespace ridelog
