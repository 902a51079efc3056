#include "format/MultipFormatter.h"

#include "tests/format/FormatterTest.h"

namespace ridelog {
namespace {

using MultipFormatterTest = FormatterTest;

TEST_F(MultipFormatterTest, MultipliesInSinglePrecisionAndOnlyWhileTheUserWantsMiles)
{
    MultipFormatter formatter(defaults);
    const auto text = [&](const QVariant& object) {
        return formatter.stringForObjectValue(object).toStdString();
    };
    EXPECT_EQ(formatter.multiplicator(), 1.0F);
    EXPECT_EQ(text(1.5), "1.5") << "also without a pattern";
    formatter.setMultiplicator(0.1F);
    formatter.setFormat(QStringLiteral("#.##########km;0 km"));
    EXPECT_EQ(text(10), "10km");
    EXPECT_EQ(text(0.3), "0.3km");
    EXPECT_EQ(text(0.3F), "0.3000000119km");
    useMiles(true);
    EXPECT_EQ(text(0.3), "0.0300000012km");
    EXPECT_EQ(text(16777217), "1677721.625km");
    EXPECT_TRUE(formatter.stringForObjectValue(1e300).isNull()) << "beyond single precision";
    for (const auto& none :
         {QVariant(), QVariant(QStringLiteral("10")), QVariant(true), QVariant(QVariantList{1})})
        EXPECT_TRUE(formatter.stringForObjectValue(none).isNull()) << none.typeName();
    useMiles(false);
    EXPECT_EQ(text(10), "10km");
}

} // namespace
} // namespace ridelog
