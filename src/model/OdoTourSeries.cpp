#include "model/OdoTour.h"
#include "model/TourLog.h"

#include <algorithm>
#include <array>

namespace ridelog {
namespace {

/// A sum that goes round at the ends of its range, as the device's own counters do.
std::int32_t sumWrapping(std::int32_t left, std::int32_t right)
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(left) + static_cast<std::uint32_t>(right));
}

/// Power over one sample. Air and rider are taken as on a day at 20 °C, 200 m up, pedalling at 60 a minute.
int modelledPower(std::int32_t distance, std::int32_t altitudeChange)
{
    return OdoTour::calcPowerFrom(200, 20, 60, sampleInterval, distance, altitudeChange);
}

/// The modelled power for all samples that a device can record: distances are multiples of 10 below 640 m,
/// altitude changes lie between −128 and 121 m. The trigonometry is done once per pair, not once per sample.
class PowerTable {
public:
    PowerTable()
    {
        for (int row = 0; row < altitudes; ++row) {
            for (int column = 0; column < distances; ++column)
                _watts[index(row, column)] = modelledPower(column * distanceStep, row + lowestChange);
        }
    }

    int power(std::int32_t distance, std::int32_t altitudeChange) const
    {
        const auto row = static_cast<std::uint32_t>(altitudeChange - lowestChange);
        const auto column = static_cast<std::uint32_t>(distance) / distanceStep;
        if (row < altitudes && column < distances &&
            distance == static_cast<std::int32_t>(column) * distanceStep)
            return _watts[index(static_cast<int>(row), static_cast<int>(column))];
        return modelledPower(distance, altitudeChange);
    }

private:
    static constexpr int distanceStep = 10;
    static constexpr int distances = 64;
    static constexpr int lowestChange = -128;
    static constexpr int altitudes = 250;

    static std::size_t index(int row, int column)
    {
        return static_cast<std::size_t>(row * distances + column);
    }

    std::array<std::int32_t, static_cast<std::size_t>(altitudes) * distances> _watts{};
};

const PowerTable& powerTable()
{
    static const PowerTable table;
    return table;
}

} // namespace

float OdoTour::calcClimbingPercentage(float deltaX, float deltaY)
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
    if (!_tourDataDict) {
        calculateValuesOfEmptyTour(now);
        return;
    }

    const auto& table = powerTable();
    const auto& samples = _tourDataDict->tourData;
    const auto first = samples.empty() ? DataRect{} : samples.front();
    std::int32_t altitude = _tourDataDict->altitudeAtStart.value_or(0);
    std::int32_t pulse = _tourDataDict->pulseAtStart.value_or(0);
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

    _data.clear();
    _data.reserve(samples.size() + 1);
    _data.push_back(
        {.altitude = altitude, .pulse = pulse, .temperature = first.temperature, .cadence = first.cadence});

    for (const auto& sample : samples) {
        const auto metres = static_cast<float>(sample.distance);
        const auto speed = static_cast<float>(sample.distance / 1000.0 * 180.0);
        altitude = sumWrapping(altitude, sample.altitudeChange);
        pulse = sumWrapping(pulse, sample.pulseChange);
        distance += metres / 1000.0F;
        time += sampleInterval;

        pulseSum += pulse;
        temperatureSum += sample.temperature;
        if (sample.distance > 0) {
            movingSpeedSum += speed;
            ++movingSamples;
        }
        maxPulse = std::max(maxPulse, pulse);
        maxSpeed = std::max(maxSpeed, speed);
        maxTemp = std::max<std::int32_t>(maxTemp, sample.temperature);
        minTemp = std::min<std::int32_t>(minTemp, sample.temperature);

        _data.push_back({.time = static_cast<std::int32_t>(time),
                         .altitude = altitude,
                         .distance = distance,
                         .pulse = pulse,
                         .power = table.power(sample.distance, sample.altitudeChange),
                         .speed = speed,
                         .climbingPercentage = calcClimbingPercentage(metres, sample.altitudeChange),
                         .temperature = sample.temperature,
                         .cadence = sample.cadence});
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
