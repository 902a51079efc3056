#include "model/OdoTour.h"
#include "model/TourLog.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numbers>

namespace ridelog {
namespace {

using Series = std::span<const SeriesEntry>;

/// Which way the road goes in the run, climb or descent that is looked for.
enum class Direction { up = 1, down = -1 };

/// Metres from one altitude to the next, counted positive in the direction.
std::int64_t progress(std::int32_t from, std::int32_t to, Direction direction)
{
    return (std::int64_t{to} - from) * static_cast<int>(direction);
}

/// A maximal sequence of entries that all go in one direction has to exceed `threshold` metres to count.
/// Answers how many such runs there are and how many metres they make together.
///
/// Roads go up and down in no order that a processor could foresee, and each of its wrong guesses costs as
/// much as several entries: nothing is decided here, what does not count is added as zero.
struct Runs {
    std::int32_t count = 0;
    std::int64_t metres = 0;
};

Runs runsExceeding(int threshold, Series series, Direction direction)
{
    Runs runs;
    std::int64_t run = 0;     // metres of the run so far
    std::int64_t counted = 0; // how many of them count: all or none
    auto reference = series.front().altitude;
    for (const auto& entry : series.subspan(1)) {
        const auto step = progress(reference, entry.altitude, direction);
        const bool goesOn = step > 0;
        const auto countedBefore = counted * goesOn;
        run = (run + step) * goesOn;
        counted = run * (run > threshold);
        runs.metres += counted - countedBefore;
        runs.count += (counted > 0) - (countedBefore > 0);
        reference = entry.altitude;
    }
    return runs;
}

/// Lengths in kilometres of the climbs (or descents): each from the last entry before it began to its last
/// entry. One still open at the end of the series is entered but never finished.
struct Lengths {
    std::int32_t entered = 0;
    float longest = 0;
    float sum = 0;
};

Lengths lengthsOfClimbs(Series series, Direction direction)
{
    Lengths lengths;
    auto altitude = series.front().altitude;
    float distance = 0;
    float climbStart = 0;
    bool open = false;
    for (const auto& entry : series) {
        if (progress(altitude, entry.altitude, direction) >= 1) {
            if (!open) {
                climbStart = distance;
                open = true;
                ++lengths.entered;
            }
        } else if (open) {
            const auto length = distance - climbStart;
            lengths.longest = std::max(lengths.longest, length);
            lengths.sum += length;
            open = false;
        }
        distance = entry.distance;
        altitude = entry.altitude;
    }
    return lengths;
}

/// Calls `visit(rise, road)`, both in metres, for every entry that has covered some road.
template <typename Visitor>
void forEachStretch(Series series, Visitor&& visit)
{
    auto altitude = series.front().altitude;
    float distance = 0;
    for (const auto& entry : series) {
        const auto rise = std::int64_t{entry.altitude} - altitude;
        const float road = (entry.distance - distance) * 1000.0F;
        if (road > 0)
            visit(static_cast<float>(rise), road);
        altitude = entry.altitude;
        distance = entry.distance;
    }
}

float grade(float rise, float road)
{
    return rise / road * 100.0F;
}

/// Slope of the road in degrees. The conversion is rounded as it always was: times 180 in single precision,
/// by π in double precision, the result to single.
float angle(float rise, float road)
{
    const float times180 = std::asin(rise / road) * 180.0F;
    return static_cast<float>(static_cast<double>(times180) / std::numbers::pi);
}

/// Beyond this grade, up or down, a value is more likely a fault of the altimeter than a road: it is logged.
constexpr float doubtfulGrade = 30.0F;

void logBigValue(float percentage, float rise, float road)
{
    qCDebug(lcTour, "Big Value: %f %f %f", static_cast<double>(percentage), static_cast<double>(rise),
            static_cast<double>(road));
}

float steepestAngle(Series series, Direction direction)
{
    const bool up = direction == Direction::up;
    float steepest = 0;
    forEachStretch(series, [&](float rise, float road) {
        // A rise larger than the road has no angle.
        if (up ? rise <= 0 : rise >= 0)
            return;
        if (std::abs(rise) > road)
            return;
        const auto degrees = angle(rise, road);
        steepest = up ? std::max(steepest, degrees) : std::min(steepest, degrees);
    });
    return steepest;
}

/// The steepest grade in the direction, as a positive number.
float steepestGrade(Series series, Direction direction)
{
    const auto sign = static_cast<float>(direction);
    float steepest = 0;
    forEachStretch(series, [&](float rise, float road) {
        const auto percentage = grade(rise, road);
        if (percentage * sign > doubtfulGrade)
            logBigValue(percentage, rise, road);
        steepest = std::max(steepest, percentage * sign);
    });
    return steepest;
}

/// The mean of some grades. What takes no part is added as zero, as with runs.
struct MeanGrade {
    float sum = 0;
    int count = 0;

    void add(float percentage, bool takesPart)
    {
        sum += percentage * static_cast<float>(takesPart);
        count += static_cast<int>(takesPart);
    }
    float value() const { return count > 0 ? sum / static_cast<float>(count) : 0.0F; }
};

/// The mean grades of the entries that go 2 m or more up, and of those that go as much down, as positive
/// numbers.
struct AverageGrades {
    MeanGrade up;
    MeanGrade down;
};

AverageGrades averageGrades(Series series)
{
    AverageGrades grades;
    forEachStretch(series, [&](float rise, float road) {
        const auto percentage = grade(rise, road);
        grades.up.add(percentage, rise > 1);
        grades.down.add(-percentage, rise < -1);
    });
    return grades;
}

/// The value in the cache, computed if it is not there yet.
template <typename Value, typename Compute>
Value cached(std::optional<Value>& slot, Compute&& compute)
{
    if (!slot)
        slot = compute();
    return *slot;
}

} // namespace

float OdoTour::maxPower() const
{
    const auto strongest = std::ranges::max_element(_data, {}, &SeriesEntry::power);
    return static_cast<float>(strongest->power);
}

double OdoTour::avgPower() const
{
    std::int64_t sum = 0;
    for (const auto& entry : _data)
        sum += entry.power;
    return static_cast<double>(sum) / static_cast<double>(_data.size());
}

std::int32_t OdoTour::elevationGain() const
{
    return cached(_calculatedValues.elevationGain, [this] {
        return static_cast<std::int32_t>(runsExceeding(3, _data, Direction::up).metres);
    });
}

std::int32_t OdoTour::elevationLoss() const
{
    return static_cast<std::int32_t>(runsExceeding(3, _data, Direction::down).metres);
}

std::int32_t OdoTour::climbingCount() const
{
    return cached(_calculatedValues.climbingCount,
                  [this] { return runsExceeding(10, _data, Direction::up).count; });
}

std::int32_t OdoTour::descendingCount() const
{
    return cached(_calculatedValues.descendingCount,
                  [this] { return runsExceeding(10, _data, Direction::down).count; });
}

float OdoTour::maxClimbingDistance() const
{
    return cached(_calculatedValues.maxClimbingDistance,
                  [this] { return lengthsOfClimbs(_data, Direction::up).longest; });
}

float OdoTour::avgClimbingDistance() const
{
    return cached(_calculatedValues.avgClimbingDistance, [this] {
        const auto climbs = lengthsOfClimbs(_data, Direction::up);
        return climbs.entered > 0 ? climbs.sum / static_cast<float>(climbs.entered) : 0.0F;
    });
}

float OdoTour::maxDescendingDistance() const
{
    return cached(_calculatedValues.maxDescendingDistance,
                  [this] { return lengthsOfClimbs(_data, Direction::down).longest; });
}

float OdoTour::maxClimbingAngle() const
{
    return cached(_calculatedValues.maxClimbingAngle, [this] { return steepestAngle(_data, Direction::up); });
}

float OdoTour::maxDecendingAngle() const
{
    return cached(_calculatedValues.maxDecendingAngle,
                  [this] { return steepestAngle(_data, Direction::down); });
}

float OdoTour::maxClimbingPercentage() const
{
    return cached(_calculatedValues.maxClimbingPercentage,
                  [this] { return steepestGrade(_data, Direction::up); });
}

float OdoTour::avgClimbingPercentage() const
{
    return cached(_calculatedValues.avgClimbingPercentage, [this] {
        const auto grades = averageGrades(_data);
        // Who asks for one asks for the other next.
        _calculatedValues.avgDecendingPercentage = grades.down.value();
        return grades.up.value();
    });
}

float OdoTour::maxDecendingPercentage() const
{
    return cached(_calculatedValues.maxDecendingPercentage,
                  [this] { return steepestGrade(_data, Direction::down); });
}

float OdoTour::avgDecendingPercentage() const
{
    return cached(_calculatedValues.avgDecendingPercentage,
                  [this] { return averageGrades(_data).down.value(); });
}

const CalculatedValues& OdoTour::calculatedValues() const
{
    elevationGain();
    climbingCount();
    descendingCount();
    maxClimbingDistance();
    avgClimbingDistance();
    maxDescendingDistance();
    maxClimbingAngle();
    maxDecendingAngle();
    maxClimbingPercentage();
    avgClimbingPercentage();
    maxDecendingPercentage();
    avgDecendingPercentage();
    return _calculatedValues;
}

} // namespace ridelog
