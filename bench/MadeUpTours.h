#pragma once

#include "model/OdoTour.h"

namespace ridelog {

/// Rides that start an hour apart, the first of them `from` hours after the beginning.
Tours makeTours(int from, int count, int samples);

} // namespace ridelog
