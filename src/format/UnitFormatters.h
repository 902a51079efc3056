#pragma once

#include "format/MultipFormatter.h"
#include "format/PreferenceAwareFormatter.h"

#include <QStringView>

/// What each place of the windows writes its numbers with: every pattern and its factor. Values are in
/// kilometres, kilometres per hour and metres.
///
/// A MultipFormatter from here is made for the units that the user wants now; whoever holds one takes another
/// when UnitsKeys::useMiles changes. `defaults` have to outlive what they are handed to.
namespace ridelog::UnitFormatters {

// Main window

MultipFormatter mainDistance(const Defaults& defaults); ///< the field and the column of the tour table
MultipFormatter mainSpeed(const Defaults& defaults);

// Tour window

MultipFormatter tourDistance(const Defaults& defaults); ///< the field and the column of the data table
MultipFormatter tourSpeed(const Defaults& defaults);    ///< the three fields and the column
MultipFormatter altitude(const Defaults& defaults);     ///< the field of the elevation gain and the column
/// For both fields of the manual altitude range. It follows the units by itself.
PreferenceAwareFormatter manualRange(const Defaults& defaults);

// Statistics window

MultipFormatter statistics(const Defaults& defaults); ///< all distances and speeds

// Charts, of windows and of the command line

MultipFormatter chartXAxis(const Defaults& defaults); ///< and the second axis, which shows speed
/// By the first series shown; that of "altitude" while none is, and without units for what has none.
MultipFormatter chartYAxis(const Defaults& defaults, QStringView firstSeries);

} // namespace ridelog::UnitFormatters
