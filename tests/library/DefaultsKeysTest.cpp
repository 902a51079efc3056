#include "library/DefaultsKeys.h"

#include "platform/CalendarDate.h"
#include "platform/Defaults.h"
#include "tests/support/Dates.h"

#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace ridelog {
namespace {

class DefaultsKeysTest : public testing::Test {
protected:
    QTemporaryDir folder;
    Defaults defaults{folder.filePath(QStringLiteral("ridelog.ini"))};
};

// The names are written out once more: users' files have them, so no constant may change unnoticed.
TEST_F(DefaultsKeysTest, RegisteredValues)
{
    const std::pair<const char*, const char*> table[] = {
        {"selectedRow", "0"},
        {"saveRawData", "true"},
        {"sortDesc", "date:desc"},
        {"color_altitude", "0,0,1,1"},
        {"color_pulse", "0.5,0.5,0.5,1"},
        {"color_speed", "0,1,0,1"},
        {"pulse_belowColor", "0.788235,0.807843,1,1"},
        {"pulse_inColor", "0.741176,1,0.803922,1"},
        {"pulse_aboveColor", "1,0.776471,0.701961,1"},
        {"pulse_minPulse", "130"},
        {"pulse_maxPulse", "170"},
        {"pulse_drawPulseRange", "true"},
        {"pulse_useGradient", "true"},
        {"speed_2ndAxis", "true"},
        {"saveRawDatas", "false"},
        {"useAlternateTransferSettings", "false"},
        {"statTabViewIdentifier", "1"},
        {"useManualRange", "false"},
        {"minRange", "0"},
        {"maxRange", "800"},
        {"checkForUpdateAfterDays", "7"},
        {"automaticCheck", "true"},
        {"useMiles", "false"},
        {"exportFormat", "tcx"},
        {"exportTogether", "false"},
    };
    QStringList registered;
    QObject::connect(&defaults, &Defaults::changed, [&](const QString& key) { registered.append(key); });
    DefaultsKeys::registerApplicationDefaults(defaults);
    EXPECT_EQ(registered.size(), 26);
    for (const auto& [name, value] : table) {
        const auto key = QString::fromLatin1(name);
        const auto expected = QString::fromLatin1(value);
        EXPECT_TRUE(registered.contains(key)) << name;
        if (const auto colour = ColourComponents::fromText(expected)) {
            ASSERT_TRUE(defaults.colourForKey(key)) << name;
            const auto found = *defaults.colourForKey(key);
            EXPECT_NEAR(found.red, colour->red, 5e-7) << name;
            EXPECT_NEAR(found.green, colour->green, 5e-7) << name;
            EXPECT_NEAR(found.blue, colour->blue, 5e-7) << name;
            EXPECT_EQ(found.alpha, 1) << name;
        } else {
            EXPECT_EQ(defaults.textForKey(key), expected) << name;
        }
    }
    EXPECT_EQ(defaults.textForKey(QStringLiteral("exportFolder")),
              QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    EXPECT_FALSE(defaults.contains(DefaultsKeys::drawerOpen));
    DefaultsKeys::registerDocumentDefaults(defaults);
    EXPECT_TRUE(defaults.boolForKey(QStringLiteral("drawerOpen")));
    EXPECT_TRUE(defaults.boolForKey(DefaultsKeys::saveRawData)) << "one set does not replace the other";
}

TEST_F(DefaultsKeysTest, NotRegistered)
{
    DefaultsKeys::registerApplicationDefaults(defaults);
    DefaultsKeys::registerDocumentDefaults(defaults);
    const std::pair<QString, const char*> table[] = {
        {DefaultsKeys::selectedInterfacePort, "selectedInterfacePort"},
        {DefaultsKeys::pictureWidth, "pictureWidth"},
        {DefaultsKeys::pictureHeight, "pictureHeight"},
        {DefaultsKeys::odoStatDate, "odoStatDate"},
        {DefaultsKeys::checkedForUpdateOn, "checkedForUpdateOn"},
        {DefaultsKeys::recentDocuments, "recentDocuments"},
        {DefaultsKeys::language, "language"},
        {DefaultsKeys::mainWindowFrame, "MainWindow"},
        {DefaultsKeys::statWindowFrame, "statWindow"},
        {DefaultsKeys::preferencesPanelFrame, "PreferencesPanel"},
    };
    for (const auto& [key, name] : table) {
        EXPECT_EQ(key.toStdString(), name);
        EXPECT_FALSE(defaults.contains(key)) << name;
    }
}

TEST_F(DefaultsKeysTest, AUsersChoiceOutlivesTheRunAndItsRemovalGivesTheRegisteredOne)
{
    DefaultsKeys::registerApplicationDefaults(defaults);
    defaults.setValue(DefaultsKeys::sortDesc, QStringLiteral("title:asc"));
    EXPECT_TRUE(defaults.synchronize());
    Defaults next(defaults.path());
    DefaultsKeys::registerApplicationDefaults(next);
    EXPECT_EQ(next.textForKey(DefaultsKeys::sortDesc), QStringLiteral("title:asc"));
    next.remove(DefaultsKeys::sortDesc);
    EXPECT_EQ(next.textForKey(DefaultsKeys::sortDesc), QStringLiteral("date:desc"));
}

TEST_F(DefaultsKeysTest, ATourKeepsItsOwnChoices)
{
    const auto tour = CalendarDate::text(berlin(2007, 3, 10, 8));
    const auto xKey = DefaultsKeys::selectedXAxisValue(tour);
    const auto yKey = DefaultsKeys::selectedYAxisValues(tour);
    EXPECT_EQ(xKey.toStdString(), "2007-03-10 08:00:00 +0100 selectedXAxisValue");
    EXPECT_EQ(yKey.toStdString(), "2007-03-10 08:00:00 +0100 selectedYAxisValues");
    defaults.setValue(xKey, QStringLiteral("time"));
    defaults.setValue(yKey, QList<int>{0, 2});
    EXPECT_TRUE(defaults.synchronize());
    const Defaults next(defaults.path());
    EXPECT_EQ(next.textForKey(xKey), QStringLiteral("time"));
    EXPECT_EQ(next.integerListForKey(yKey), (QList<int>{0, 2}));
    const auto otherTour = CalendarDate::text(berlin(2007, 3, 11, 8));
    EXPECT_FALSE(next.contains(DefaultsKeys::selectedXAxisValue(otherTour)));
}

} // namespace
} // namespace ridelog
