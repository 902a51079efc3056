#pragma once

#include "model/OdoTour.h"
#include "platform/JsonWriter.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace ridelog {

/// Which of a tour's long lists are written as well.
struct TourJsonParts {
    bool series = false; ///< "series": one object per series entry
    bool raw = false;    ///< "tourData": one string of 40 hex digits per sample record
};

/// Writes the tour as one JSON object, all summary values included. Values are metric. `number` is the one
/// that people call the tour by in its list, from 1.
void writeTour(JsonWriter& json, const OdoTour& tour, int number, TourJsonParts parts);

/// Begins the object of a list of tours: what the device says of itself, then the tours, which the caller
/// writes.
void beginTourList(JsonWriter& json, const std::vector<std::pair<QString, std::int32_t>>& generalData);
void endTourList(JsonWriter& json);

} // namespace ridelog
