#pragma once

#include "format/UnitsKeys.h"
#include "platform/UpdateKeys.h"

#include <QString>

namespace ridelog {

class Defaults;

/// The keys of the user's choices, each written here and nowhere else but for those that formatters and the
/// update check read, and the values that count while the user has made none.
namespace DefaultsKeys {

// Main window
inline const QString selectedRow = QStringLiteral("selectedRow"); ///< integer: row of the tour table
inline const QString sortDesc = QStringLiteral("sortDesc"); ///< text: order of the tour table, "date:desc"
inline const QString mainTableColumns =
    QStringLiteral("mainTableColumns"); ///< bytes: arrangement of the table's columns
inline const QString mainWindowState = QStringLiteral("mainWindowState"); ///< bytes: docks and tool bars
inline const QString mainSplitter = QStringLiteral("mainSplitter");       ///< bytes: table above, chart below
inline const QString drawerOpen = QStringLiteral("drawerOpen");           ///< bool: the connect drawer
inline const QString selectedInterfacePort =
    QStringLiteral("selectedInterfacePort"); ///< text: path of a port

// Transfer
inline const QString saveRawData = QStringLiteral("saveRawData");   ///< bool: keep each dump that arrives
inline const QString saveRawDatas = QStringLiteral("saveRawDatas"); ///< bool, without effect
inline const QString useAlternateTransferSettings =
    QStringLiteral("useAlternateTransferSettings"); ///< bool: two stop bits instead of one

// Chart
inline const QString colorAltitude = QStringLiteral("color_altitude");     ///< colour
inline const QString colorPulse = QStringLiteral("color_pulse");           ///< colour
inline const QString colorSpeed = QStringLiteral("color_speed");           ///< colour
inline const QString pulseBelowColor = QStringLiteral("pulse_belowColor"); ///< colour: below the range
inline const QString pulseInColor = QStringLiteral("pulse_inColor");       ///< colour: inside the range
inline const QString pulseAboveColor = QStringLiteral("pulse_aboveColor"); ///< colour: above the range
inline const QString pulseMinPulse = QStringLiteral("pulse_minPulse");     ///< integer: beats per minute
inline const QString pulseMaxPulse = QStringLiteral("pulse_maxPulse");     ///< integer: beats per minute
inline const QString pulseDrawPulseRange = QStringLiteral("pulse_drawPulseRange"); ///< bool
inline const QString pulseUseGradient = QStringLiteral("pulse_useGradient");       ///< bool
inline const QString speed2ndAxis = QStringLiteral("speed_2ndAxis");               ///< bool
inline const QString useManualRange = QStringLiteral("useManualRange");            ///< bool: altitude axis
inline const QString minRange = QStringLiteral("minRange");                        ///< float: metres
inline const QString maxRange = QStringLiteral("maxRange");                        ///< float: metres

// Saved pictures of a chart
inline const QString pictureWidth = QStringLiteral("pictureWidth");   ///< float: pixels
inline const QString pictureHeight = QStringLiteral("pictureHeight"); ///< float: pixels

// Export
inline const QString exportFormat = QStringLiteral("exportFormat");     ///< text: name of a format, "tcx"
inline const QString exportFolder = QStringLiteral("exportFolder");     ///< text: path of the folder
inline const QString exportTogether = QStringLiteral("exportTogether"); ///< bool: all tours in one file

// Statistics window
inline const QString statTabViewIdentifier = QStringLiteral("statTabViewIdentifier"); ///< text: the tab shown
inline const QString odoStatDate =
    QStringLiteral("odoStatDate"); ///< date whose week, month and year are shown

// Update check
inline const QString automaticCheck = QStringLiteral("automaticCheck"); ///< bool
using UpdateKeys::checkedForUpdateOn;                                   ///< date of the last check
using UpdateKeys::checkForUpdateAfterDays;                              ///< integer: days

// Manual
inline const QString manualZoom =
    QStringLiteral("manualZoom"); ///< integer: points that its letters are larger than usual

// Documents
inline const QString recentDocuments =
    QStringLiteral("recentDocuments"); ///< list of texts: paths, newest first

// Everywhere
using UnitsKeys::useMiles; ///< bool: show miles, mph and feet
inline const QString language =
    QStringLiteral("language"); ///< text: code of the windows' language; none: the system's

// Window frames
inline const QString mainWindowFrame = QStringLiteral("MainWindow");
inline const QString statWindowFrame = QStringLiteral("statWindow");
inline const QString preferencesPanelFrame = QStringLiteral("PreferencesPanel");
inline const QString manualWindowFrame = QStringLiteral("ManualWindow");

/// The frame of the window of the tour with this description.
QString tourWindowFrame(const QString& tourDescription);
/// Text, "time" or "distance": the x axis of the chart of the tour with this description.
QString selectedXAxisValue(const QString& tourDescription);
/// List of integers, 0 altitude, 1 speed, 2 pulse: what the chart of the tour with this description shows.
QString selectedYAxisValues(const QString& tourDescription);

/// Registers the values of the application, all but that of the document.
void registerApplicationDefaults(Defaults& defaults);
/// Registers the value of "drawerOpen".
void registerDocumentDefaults(Defaults& defaults);

} // namespace DefaultsKeys
} // namespace ridelog
