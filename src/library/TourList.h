#pragma once

#include "model/OdoTour.h"

namespace ridelog {

/// The tours in the order in which a document's are listed: newest first.
Tours inListOrder(const Tours& tours);

Tours withoutRemoved(Tours tours);

} // namespace ridelog
