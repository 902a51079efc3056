#pragma once

#include "model/OdoTour.h"

#include <QStringView>

#include <cstdint>
#include <optional>

namespace ridelog {

/// Totals, averages and maxima of some tours; all zero for none. In an average each tour weighs one, however
/// long it is.
struct PeriodStatistics {
    float distance = 0;             ///< kilometres
    double duration = 0;            ///< seconds
    std::int64_t elevationGain = 0; ///< metres
    float averageSpeed = 0;         ///< km/h
    float maxSpeed = 0;             ///< km/h
    float averagePulse = 0;         ///< beats per minute, of the whole beats of each tour's average
    std::int64_t maxPulse = 0;      ///< beats per minute
    std::int64_t heartBeats = 0;    ///< at the average pulse for the whole duration
    float averageClimbingPerc = 0;  ///< per cent
    float averageDecendingPerc = 0; ///< per cent, positive

    bool operator==(const PeriodStatistics&) const = default;

    /// The value under this key, or none for a name that is no key.
    std::optional<double> valueForKey(QStringView key) const;
};

/// Calls `visit(key, value)` for every value, under the key that other programs know it by.
template <typename Visitor>
void forEachValue(const PeriodStatistics& statistics, Visitor&& visit)
{
    visit(u"distance", statistics.distance);
    visit(u"duration", statistics.duration);
    visit(u"elevationGain", statistics.elevationGain);
    visit(u"averageSpeed", statistics.averageSpeed);
    visit(u"maxSpeed", statistics.maxSpeed);
    visit(u"averagePulse", statistics.averagePulse);
    visit(u"maxPulse", statistics.maxPulse);
    visit(u"heartBeats", statistics.heartBeats);
    visit(u"averageClimbingPerc", statistics.averageClimbingPerc);
    visit(u"averageDecendingPerc", statistics.averageDecendingPerc);
}

/// Adds tours up, one after the other.
class TourSums {
public:
    void add(const OdoTour& tour);

    PeriodStatistics statistics() const;
    /// Start of the earliest and of the latest tour; none before the first.
    const std::optional<QDateTime>& firstTour() const { return _firstTour; }
    const std::optional<QDateTime>& lastTour() const { return _lastTour; }

private:
    int _count = 0;
    PeriodStatistics _totals; ///< without the averages and what follows from them
    float _speedSum = 0;
    std::int64_t _pulseSum = 0;
    float _climbingSum = 0;
    float _descendingSum = 0;
    std::optional<QDateTime> _firstTour;
    std::optional<QDateTime> _lastTour;
};

} // namespace ridelog
