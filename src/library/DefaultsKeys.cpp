#include "library/DefaultsKeys.h"

#include "platform/Defaults.h"

#include <QStandardPaths>

namespace ridelog::DefaultsKeys {

QString tourWindowFrame(const QString& tourDescription)
{
    return tourDescription;
}

QString selectedXAxisValue(const QString& tourDescription)
{
    return tourDescription + QStringLiteral(" selectedXAxisValue");
}

QString selectedYAxisValues(const QString& tourDescription)
{
    return tourDescription + QStringLiteral(" selectedYAxisValues");
}

void registerApplicationDefaults(Defaults& defaults)
{
    defaults.registerDefaults({
        {selectedRow, 0},
        {saveRawData, true},
        {sortDesc, QStringLiteral("date:desc")},
        {colorAltitude, ColourComponents{0, 0, 1, 1}},
        {colorPulse, ColourComponents{0.5, 0.5, 0.5, 1}},
        {colorSpeed, ColourComponents{0, 1, 0, 1}},
        {pulseBelowColor, ColourComponents{201.0 / 255, 206.0 / 255, 1, 1}},
        {pulseInColor, ColourComponents{189.0 / 255, 1, 205.0 / 255, 1}},
        {pulseAboveColor, ColourComponents{1, 198.0 / 255, 179.0 / 255, 1}},
        {pulseMinPulse, 130},
        {pulseMaxPulse, 170},
        {pulseDrawPulseRange, true},
        {pulseUseGradient, true},
        {speed2ndAxis, true},
        {saveRawDatas, false},
        {useAlternateTransferSettings, false},
        {statTabViewIdentifier, QStringLiteral("1")},
        {useManualRange, false},
        {minRange, 0},
        {maxRange, 800},
        {checkForUpdateAfterDays, 7},
        {automaticCheck, true},
        {useMiles, false},
        {exportFormat, QStringLiteral("tcx")},
        {exportFolder, QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)},
        {exportTogether, false},
    });
}

void registerDocumentDefaults(Defaults& defaults)
{
    defaults.registerDefaults({{drawerOpen, true}});
}

} // namespace ridelog::DefaultsKeys
