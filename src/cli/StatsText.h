#pragma once

#include "format/ReadableUnits.h"
#include "model/OdoStat.h"

#include <QString>

namespace ridelog {

/// The four periods for people, a column each, and notes on what the values cannot say.
QString statsText(OdoStat& stat, const ReadableUnits& units);

} // namespace ridelog
