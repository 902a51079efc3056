#include "model/PeriodStatistics.h"

#include <algorithm>

namespace ridelog {

std::optional<double> PeriodStatistics::valueForKey(QStringView key) const
{
    std::optional<double> found;
    forEachValue(*this, [&](QStringView name, auto value) {
        if (name == key)
            found = static_cast<double>(value);
    });
    return found;
}

void TourSums::add(const OdoTour& tour)
{
    ++_count;
    _totals.distance += tour.totalDistance();
    _totals.duration += tour.duration();
    _totals.elevationGain += tour.elevationGain();
    _speedSum += tour.avgSpeed();
    _totals.maxSpeed = std::max(_totals.maxSpeed, tour.maxSpeed());
    _pulseSum += static_cast<std::int64_t>(tour.avgPulse());
    _totals.maxPulse = std::max(_totals.maxPulse, static_cast<std::int64_t>(tour.maxPulse()));
    _climbingSum += tour.avgClimbingPercentage();
    _descendingSum += tour.avgDecendingPercentage();
    if (!_firstTour || tour.date() < *_firstTour)
        _firstTour = tour.date();
    if (!_lastTour || *_lastTour < tour.date())
        _lastTour = tour.date();
}

PeriodStatistics TourSums::statistics() const
{
    auto statistics = _totals;
    if (_count == 0)
        return statistics;
    const auto tours = static_cast<float>(_count);
    statistics.averageSpeed = _speedSum / tours;
    statistics.averagePulse = static_cast<float>(_pulseSum) / tours;
    statistics.averageClimbingPerc = _climbingSum / tours;
    statistics.averageDecendingPerc = _descendingSum / tours;
    statistics.heartBeats =
        static_cast<std::int64_t>(statistics.duration / 60.0 * static_cast<double>(statistics.averagePulse));
    return statistics;
}

} // namespace ridelog
