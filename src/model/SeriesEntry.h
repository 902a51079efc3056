#pragma once

#include "model/SeriesNames.h"

#include <QStringView>

#include <cstdint>
#include <optional>

namespace ridelog {

/// One point in time of a tour's series. The first entry of a series is the start of the tour, each further
/// one the state at the end of a sample.
struct SeriesEntry {
    std::int32_t time = 0;        ///< seconds from the start
    std::int32_t altitude = 0;    ///< metres
    float distance = 0;           ///< kilometres from the start
    std::int32_t pulse = 0;       ///< beats per minute
    std::int32_t power = 0;       ///< watts, by the power model
    float speed = 0;              ///< kilometres per hour
    float climbingPercentage = 0; ///< grade over the road, per cent
    std::int16_t temperature = 0; ///< °C
    std::int16_t cadence = 0;     ///< revolutions per minute

    bool operator==(const SeriesEntry&) const = default;

    /// The value of the field with this name as a 32-bit float, or none for a name that is no field.
    std::optional<float> valueForKey(QStringView name) const;
};

/// Calls `visit(name, member)` for every field, `member` a pointer to the member.
template <typename Visitor>
void forEachSeriesField(Visitor&& visit)
{
    visit(SeriesNames::time, &SeriesEntry::time);
    visit(SeriesNames::altitude, &SeriesEntry::altitude);
    visit(SeriesNames::distance, &SeriesEntry::distance);
    visit(SeriesNames::pulse, &SeriesEntry::pulse);
    visit(u"power", &SeriesEntry::power);
    visit(SeriesNames::speed, &SeriesEntry::speed);
    visit(u"climbingPercentage", &SeriesEntry::climbingPercentage);
    visit(u"temperature", &SeriesEntry::temperature);
    visit(u"cadence", &SeriesEntry::cadence);
}

/// Calls `visit(name, value)` for every field of the entry.
template <typename Visitor>
void forEachField(const SeriesEntry& entry, Visitor&& visit)
{
    forEachSeriesField([&](QStringView name, auto member) { visit(name, entry.*member); });
}

inline std::optional<float> SeriesEntry::valueForKey(QStringView name) const
{
    std::optional<float> found;
    forEachField(*this, [&](QStringView field, auto value) {
        if (field == name)
            found = static_cast<float>(value);
    });
    return found;
}

} // namespace ridelog
