#pragma once

#include "format/ReadableUnits.h"
#include "model/OdoTour.h"

#include <QString>

namespace ridelog {

/// All that is known of a tour, but for its samples and series, on a page for people.
QString tourText(const OdoTour& tour, int number, const ReadableUnits& units);

} // namespace ridelog
