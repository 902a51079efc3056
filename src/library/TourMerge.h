#pragma once

#include "model/OdoTour.h"

namespace ridelog {

/// Of `incoming`, in its order, the tours that `present` does not hold yet; of several equal ones the first.
///
/// Two tours are the same when they start at the same instant and have the same total distance, or the very
/// same sample records. The latter is so for a tour that went over the end of the device's memory: as it
/// comes from the device its distance is that of its first part, as it comes from a document that of the
/// whole. Linear in the number of tours as long as few of them start together.
Tours toursNotIn(const Tours& present, const Tours& incoming);

} // namespace ridelog
