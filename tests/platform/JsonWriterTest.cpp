#include "platform/JsonWriter.h"

#include "tests/support/Dates.h"

#include <QBuffer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>
#include <limits>

namespace ridelog {
namespace {

template <typename Write>
std::string written(Write&& write)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    JsonWriter json(buffer);
    write(json);
    EXPECT_TRUE(json.finish());
    return buffer.data().toStdString();
}

TEST(JsonWriter, NestsAndKeepsTheOrderOfKeys)
{
    EXPECT_EQ(written([](JsonWriter& json) {
                  json.beginObject();
                  json.entry(u"zebra", 1);
                  json.key(u"apples");
                  json.beginArray();
                  json.value(true);
                  json.beginObject();
                  json.endObject();
                  json.value(std::optional<int>());
                  json.endArray();
                  json.entry(u"when", berlin(2007, 3, 10, 8));
                  json.endObject();
              }),
              "{\"zebra\":1,\"apples\":[true,{},null],\"when\":\"2007-03-10 08:00:00 +0100\"}\n");
}

TEST(JsonWriter, NumbersAreTheShortestThatReadBack)
{
    const auto text = [](auto number) { return written([=](JsonWriter& json) { json.value(number); }); };
    EXPECT_EQ(text(0.15F), "0.15\n");
    EXPECT_EQ(text(0.15), "0.15\n");
    EXPECT_EQ(text(static_cast<double>(0.15F)), "0.15000000596046448\n");
    EXPECT_EQ(text(27.0F), "27\n");
    EXPECT_EQ(text(1.0F / 3), "0.33333334\n");
    EXPECT_EQ(text(std::numeric_limits<std::int32_t>::min()), "-2147483648\n");
    EXPECT_EQ(text(std::numeric_limits<float>::infinity()), "null\n");
    EXPECT_EQ(text(std::numeric_limits<double>::quiet_NaN()), "null\n");
}

TEST(JsonWriter, AnyTextComesBack)
{
    QString every;
    for (char16_t code = 1; code < 0x180; ++code)
        every += QChar(code);
    every += QStringLiteral("Ο γύρος 🚴 \"\\/");
    const auto text = written([&](JsonWriter& json) {
        json.beginArray();
        json.value(QStringView(every));
        json.value(QStringView(QString(QChar(0xD800))));
        json.endArray();
    });
    const auto read = QJsonDocument::fromJson(QByteArray::fromStdString(text)).array();
    EXPECT_EQ(read.at(0).toString(), every);
    EXPECT_EQ(read.at(1).toString().size(), 1) << "an unpaired surrogate is replaced, not written";
}

TEST(JsonWriter, SaysWhenTheDeviceIsFull)
{
    class FullDevice final : public QIODevice {
        qint64 readData(char*, qint64) override { return -1; }
        qint64 writeData(const char*, qint64) override { return -1; }
    } full;
    full.open(QIODevice::WriteOnly);
    JsonWriter json(full);
    json.value(1);
    EXPECT_FALSE(json.finish());
}

} // namespace
} // namespace ridelog
