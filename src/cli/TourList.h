#pragma once

#include "library/TourMerge.h"

namespace ridelog {

/// The tours in the order in which a document's are listed. Those that start together stay as they were.
Tours newestFirst(Tours tours);

Tours withoutRemoved(Tours tours);

} // namespace ridelog
