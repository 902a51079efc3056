#pragma once

#include "model/DataRect.h"
#include "platform/ArchiveObject.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

namespace ridelog {

/// What the device recorded of one tour, kept unchanged for the life of the tour.
struct TourDictionary {
    std::optional<QString> type; ///< "Jogging", "Ski", "Bike", "Ski-Bike"; none for an unknown sport code
    std::optional<std::int32_t> recordOffsetDD; ///< dump offset of the tour's end record
    std::optional<std::int32_t> hour;
    std::optional<std::int32_t> min;
    std::optional<std::int32_t> month;
    std::optional<std::int32_t> day;
    std::optional<std::int32_t> distanceAtStart; ///< kilometres on the device's counter
    std::optional<std::int32_t> altitudeAtStart; ///< metres
    std::optional<std::int32_t> pulseAtStart;    ///< beats per minute
    std::vector<DataRect> tourData;              ///< the samples, one every 20 seconds
    /// What a document holds beside these, kept to be written back.
    std::vector<std::pair<QString, ArchiveObject>> otherEntries;

    bool operator==(const TourDictionary&) const = default;
};

/// Calls `visit(key, value)` for every entry but the samples, present or not, under the key that files and
/// other programs know it by.
template <typename Dictionary, typename Visitor>
void forEachEntry(Dictionary& dictionary, Visitor&& visit)
{
    visit(u"type", dictionary.type);
    visit(u"recordOffsetDD", dictionary.recordOffsetDD);
    visit(u"hour", dictionary.hour);
    visit(u"min", dictionary.min);
    visit(u"month", dictionary.month);
    visit(u"day", dictionary.day);
    visit(u"distance at start (km)", dictionary.distanceAtStart);
    visit(u"altitude at start", dictionary.altitudeAtStart);
    visit(u"pulse at start", dictionary.pulseAtStart);
}

} // namespace ridelog
