#include "format/UnitFormatters.h"

#include "tests/format/FormatterTest.h"

namespace ridelog {
namespace {

class UnitFormattersTest : public FormatterTest {
protected:
    /// What a formatter makes of telling values.
    static std::string texts(const MultipFormatter& formatter)
    {
        QStringList texts;
        for (const double value :
             {0.0, -0.0, 10.0, 6.213712, 0.125, 0.375, 2.5, 0.001, -0.001, -12.5, 1240.0, 999999.96})
            texts << formatter.stringForObjectValue(value);
        return texts.join(u' ').toStdString();
    }
};

TEST_F(UnitFormattersTest, EachPlaceHasItsTextsInBothUnits)
{
    using namespace UnitFormatters;
    using Make = MultipFormatter (*)(const Defaults&);
    struct Place {
        Make make;
        const char* metric;
        const char* miles;
    };
    const auto* tenths = "0 0 10 6.2 0.1 0.4 2.5 0 0 -12.5 1240 1000000";
    const auto* tenthsOfMiles = "0 0 6.2 3.9 0.1 0.2 1.6 0 0 -7.8 770.5 621371.2";
    const auto* whole = "0 0 10 6 0 0 2 0 0 -12 1240 1000000";
    const auto* feet = "0 0 33 20 0 1 8 0 0 -41 4068 3280840";
    const Place places[] = {
        {mainDistance, "0 km 0 km 10km 6.21km 0.12km 0.38km 2.5km 0km 0 km -12.5km 1240km 999999.96km",
         "0mi 0mi 6.21mi 3.86mi 0.08mi 0.23mi 1.55mi 0mi 0mi -7.77mi 770.5mi 621371.19mi"},
        {mainSpeed,
         "0 km/h 0 km/h 10km/h 6.2km/h 0.1km/h 0.4km/h 2.5km/h 0km/h 0 km/h -12.5km/h 1240km/h 1000000km/h",
         "0mph 0mph 6.2mph 3.9mph 0.1mph 0.2mph 1.6mph 0mph 0mph -7.8mph 770.5mph 621371.2mph"},
        {tourDistance, "0 km 0 km 10km 6.21km 0.12km 0.38km 2.5km 0km 0 km -12.5km 1240km 999999.96km",
         "0 mi 0 mi 6.21mi 3.86mi 0.08mi 0.23mi 1.55mi 0mi 0 mi -7.77mi 770.5mi 621371.19mi"},
        {tourSpeed,
         "0 km/h 0 km/h 10km/h 6.2km/h 0.1km/h 0.4km/h 2.5km/h 0km/h 0 km/h -12.5km/h 1240km/h 1000000km/h",
         "0 mph 0 mph 6.2mph 3.9mph 0.1mph 0.2mph 1.6mph 0mph 0 mph 7.8mph 770.5mph 621371.2mph"},
        {altitude, whole, feet},
        {statistics, tenths, tenthsOfMiles},
        {chartXAxis, tenths, tenthsOfMiles},
        {[](const Defaults& units) { return chartYAxis(units, u"altitude"); }, whole, feet},
        {[](const Defaults& units) { return chartYAxis(units, u"speed"); }, tenths,
         "0 0 6.2 3.9 0.1 0.2 1.6 0 0 7.8 770.5 621371.2"},
        {[](const Defaults& units) { return chartYAxis(units, u"pulse"); }, whole, whole},
        {[](const Defaults& units) { return chartYAxis(units, u"cadence"); }, whole, whole},
        {[](const Defaults& units) { return chartYAxis(units, {}); }, whole, feet},
    };
    for (const auto& [make, metric, miles] : places) {
        useMiles(false);
        EXPECT_EQ(texts(make(defaults)), metric);
        useMiles(true);
        EXPECT_EQ(texts(make(defaults)), miles);
    }
}

TEST_F(UnitFormattersTest, AHeldFormatterDoesNotCallKilometresMiles)
{
    const auto held = UnitFormatters::tourDistance(defaults);
    useMiles(true);
    EXPECT_EQ(held.stringForObjectValue(10), QStringLiteral("10km"));
    QLocale::setDefault(QLocale(QLocale::German));
    EXPECT_EQ(held.stringForObjectValue(6.213712F), QStringLiteral("6,21km"));
}

TEST_F(UnitFormattersTest, TheManualRangeIsReadInTheUnitsInWhichItIsShown)
{
    auto range = UnitFormatters::manualRange(defaults);
    const auto metres = [&](const char* typed) {
        QVariant object;
        EXPECT_TRUE(range.getObjectValue(&object, QString::fromLatin1(typed), nullptr)) << typed;
        return object.toDouble();
    };
    EXPECT_EQ(range.stringForObjectValue(800), QStringLiteral("800"));
    EXPECT_EQ(range.stringForObjectValue(0), QStringLiteral("0"));
    EXPECT_EQ(metres("800"), 800);
    useMiles(true);
    EXPECT_EQ(range.stringForObjectValue(800), QStringLiteral("2624.7"));
    EXPECT_EQ(range.stringForObjectValue(-12.5), QStringLiteral("-41"));
    EXPECT_EQ(range.stringForObjectValue(0), QStringLiteral("0 mi"));
    EXPECT_NEAR(metres(" 2624.7 "), 800, 0.01);
    range = UnitFormatters::manualRange(defaults);
    EXPECT_NEAR(metres("2624.7"), 800, 0.01) << "also before anything was shown";
}

} // namespace
} // namespace ridelog
