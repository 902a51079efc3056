#include "model/OdoTour.h"
#include "model/TourLog.h"

#include <algorithm>
#include <array>

namespace ridelog {
namespace {

/// A sum that goes round at the ends of its range: hostile values must not end in undefined arithmetic.
std::int32_t sumWrapping(std::int32_t left, std::int32_t right)
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(left) + static_cast<std::uint32_t>(right));
}

/// What follows from a sample's distance alone.
struct Road {
    float kilometres;
    float speed; ///< km/h
};

Road roadOf(std::int32_t distance)
{
    return {.kilometres = static_cast<float>(distance) / 1000.0F,
            .speed = static_cast<float>(distance / 1000.0 * 180.0)};
}

/// What follows from a sample's distance and altitude change.
struct Slope {
    float grade; ///< per cent
    int power;   ///< watts
};

/// Air and rider are taken as on a day at 20 °C, 200 m up, pedalling at 60 a minute.
Slope slopeOf(std::int32_t distance, std::int32_t altitudeChange)
{
    return {.grade = OdoTour::calcClimbingPercentageDeltaX(static_cast<float>(distance),
                                                           static_cast<float>(altitudeChange)),
            .power = OdoTour::calcPowerFrom(200, 20, 60, sampleInterval, distance, altitudeChange)};
}

/// Roads and slopes of all samples that a device can record: distances are multiples of 10 below 640 m,
/// altitude changes lie between −128 and 121 m. Divisions and trigonometry are done once per pair and
/// process, which costs about as much as a full dump would without the table, and not once per sample.
class SampleTable {
public:
    SampleTable()
    {
        for (unsigned column = 0; column < distances; ++column) {
            const auto distance = static_cast<int>(column * distanceStep);
            _roads[column] = roadOf(distance);
            for (unsigned row = 0; row < altitudes; ++row)
                _slopes[row * distances + column] = slopeOf(distance, static_cast<int>(row) + lowestChange);
        }
    }

    Road road(std::int32_t distance) const
    {
        const auto column = columnOf(distance);
        return column < distances ? _roads[column] : roadOf(distance);
    }

    Slope slope(std::int32_t distance, std::int32_t altitudeChange) const
    {
        const auto column = columnOf(distance);
        const auto row = static_cast<unsigned>(altitudeChange - lowestChange);
        return column < distances && row < altitudes ? _slopes[row * distances + column]
                                                     : slopeOf(distance, altitudeChange);
    }

private:
    static constexpr unsigned distanceStep = 10;
    static constexpr unsigned distances = 64;
    static constexpr int lowestChange = -128;
    static constexpr unsigned altitudes = 250;

    /// The place of a distance in the table; beyond its end for one that no device records.
    static unsigned columnOf(std::int32_t distance)
    {
        const auto column = static_cast<unsigned>(distance) / distanceStep;
        return column * distanceStep == static_cast<unsigned>(distance) ? column : distances;
    }

    std::array<Road, distances> _roads{};
    std::array<Slope, std::size_t{altitudes} * distances> _slopes{};
};

const SampleTable& sampleTable()
{
    static const SampleTable table;
    return table;
}

} // namespace

float OdoTour::calcClimbingPercentageDeltaX(float deltaX, float deltaY)
{
    return deltaX == 0 ? 0.0F : deltaY / deltaX * 100.0F;
}

void OdoTour::calculateValuesOfEmptyTour(const QDateTime& now)
{
    _data.assign(1, SeriesEntry{});
    qCDebug(lcTour, "EMPTY DATA");
    calculateDate(now);
    _calculatedValues.averagePulse = 0.0F;
    _calculatedValues.averageSpeed = 0.0F;
    _calculatedValues.averageMovingSpeed = 0.0F;
    _calculatedValues.maxPulse = 0.0F;
    _calculatedValues.maxSpeed = 0.0F;
}

void OdoTour::calculateAllValues(const QDateTime& now)
{
    qCDebug(lcTour, "calculateAllValues");
    if (!tourDataDict()) {
        calculateValuesOfEmptyTour(now);
        return;
    }

    const auto& table = sampleTable();
    const auto& samples = tourDataDict()->tourData;
    const auto first = samples.empty() ? DataRect{} : samples.front();
    std::int32_t altitude = tourDataDict()->altitudeAtStart.value_or(0);
    std::int32_t pulse = tourDataDict()->pulseAtStart.value_or(0);
    float distance = 0;
    std::uint32_t time = 0;

    std::int64_t pulseSum = 0;
    std::int64_t temperatureSum = 0;
    float movingSpeedSum = 0;
    int movingSamples = 0;
    std::int32_t maxPulse = 0;
    float maxSpeed = 0;
    std::int32_t maxTemp = -9999;
    std::int32_t minTemp = 9999;

    _data.assign(samples.size() + 1, SeriesEntry{});
    _data.front() = {
        .altitude = altitude, .pulse = pulse, .temperature = first.temperature, .cadence = first.cadence};
    auto* entry = _data.data();
    for (const auto& sample : samples) {
        const auto road = table.road(sample.distance);
        const auto slope = table.slope(sample.distance, sample.altitudeChange);
        altitude = sumWrapping(altitude, sample.altitudeChange);
        pulse = sumWrapping(pulse, sample.pulseChange);
        distance += road.kilometres;
        time += sampleInterval;

        pulseSum += pulse;
        temperatureSum += sample.temperature;
        if (sample.distance > 0) {
            movingSpeedSum += road.speed;
            ++movingSamples;
        }
        maxPulse = std::max(maxPulse, pulse);
        maxSpeed = std::max(maxSpeed, road.speed);
        maxTemp = std::max<std::int32_t>(maxTemp, sample.temperature);
        minTemp = std::min<std::int32_t>(minTemp, sample.temperature);

        *++entry = {.time = static_cast<std::int32_t>(time),
                    .altitude = altitude,
                    .distance = distance,
                    .pulse = pulse,
                    .power = slope.power,
                    .speed = road.speed,
                    .climbingPercentage = slope.grade,
                    .temperature = sample.temperature,
                    .cadence = sample.cadence};
    }

    calculateDate(now);

    const auto entries = static_cast<float>(_data.size());
    _calculatedValues.averagePulse = static_cast<float>(pulseSum) / entries;
    _calculatedValues.averageSpeed = static_cast<float>(totalDistance() / (duration() / 3600.0));
    _calculatedValues.averageMovingSpeed =
        movingSamples > 0 ? movingSpeedSum / static_cast<float>(movingSamples) : 0.0F;
    _calculatedValues.averageTemp = static_cast<float>(temperatureSum) / entries;
    _calculatedValues.maxPulse = static_cast<float>(maxPulse);
    _calculatedValues.maxSpeed = maxSpeed;
    _calculatedValues.maxTemp = static_cast<float>(maxTemp);
    _calculatedValues.minTemp = static_cast<float>(minTemp);

    qCDebug(lcTour, "calculateAllValues: %zu data added", _data.size());
}

} // namespace ridelog
