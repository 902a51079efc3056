#pragma once

#include "simulator/DumpWriter.h"

#include <QByteArray>

#include <cstdint>

namespace ridelog {

/// Makes up a year of rides that could have happened: hilly and flat roads, a rider whose speed follows from
/// effort and grade and whose pulse follows the effort, stops, seasons. The same wishes give the same bytes.
struct RideGenerator {
    std::uint32_t seed = 1;
    int tours = 8;        ///< 0 to `mostTours`
    bool wrapped = false; ///< the last tour goes on at the front of the memory; needs a tour

    /// So many tours of a single record of samples fill the memory.
    static constexpr int mostTours = DumpLayout::recordSlots / 3;

    /// The dump of the rider's device.
    QByteArray dump() const;
};

} // namespace ridelog
