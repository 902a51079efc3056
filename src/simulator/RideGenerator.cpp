#include "simulator/RideGenerator.h"

#include "model/DataRect.h"

#include <QDate>
#include <QRandomGenerator>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ridelog {
namespace {

using namespace DumpLayout;

constexpr double gravity = 9.81;
constexpr int homeAltitude = 412;
constexpr int year = 2007;

double between(QRandomGenerator& random, double low, double high)
{
    return low + (high - low) * random.generateDouble();
}

/// A road: altitude over distance as a few waves laid over each other, from ripples to a mountain.
class Terrain {
public:
    Terrain(QRandomGenerator& random, double steepness)
    {
        double length = between(random, 600, 1200);
        for (auto& wave : _waves) {
            // A wave's steepest grade is amplitude × 2π / length.
            const auto grade = steepness * between(random, 0.2, 0.6);
            wave = {grade * length / (2 * std::numbers::pi), length,
                    between(random, 0, 2 * std::numbers::pi)};
            length *= between(random, 2.0, 3.2);
        }
    }

    double altitude(double metres) const
    {
        double sum = 0;
        for (const auto& wave : _waves)
            sum += wave.amplitude * (std::sin(wave.angle(metres)) - std::sin(wave.phase));
        return sum;
    }

    double grade(double metres) const
    {
        double sum = 0;
        for (const auto& wave : _waves)
            sum += wave.amplitude * 2 * std::numbers::pi / wave.length * std::cos(wave.angle(metres));
        return sum;
    }

private:
    struct Wave {
        double amplitude = 0;
        double length = 1;
        double phase = 0;

        double angle(double metres) const { return 2 * std::numbers::pi * metres / length + phase; }
    };

    std::array<Wave, 4> _waves;
};

/// Speed in m/s that a power in watts keeps up on a grade: weight and rolling against air, by bisection.
double steadySpeed(double power, double grade, double mass, double drag)
{
    double slow = 0.5;
    double fast = 20;
    for (int step = 0; step < 24; ++step) {
        const auto speed = (slow + fast) / 2;
        const auto needed = speed * (mass * gravity * (grade + 0.006) + drag * speed * speed);
        (needed > power ? fast : slow) = speed;
    }
    return slow;
}

/// What distinguishes one sport's tours from another's.
struct Style {
    QByteArray sportCode;
    double power;     ///< watts that arrive at the road
    double drag;      ///< watts per (m/s)³
    double steepness; ///< steepest grade, as a fraction
    double topSpeed;  ///< m/s
    int cadence;      ///< revolutions or steps per minute
    std::size_t mostSamples;
};

Style styleFor(QRandomGenerator& random, int month)
{
    const bool winter = month <= 2 || month == 12;
    const auto choice = random.bounded(10);
    if (winter && choice < 2)
        return {"91", 130, 0.6, 0.06, 10, 0, 500};
    if (winter && choice < 4)
        return {"B1", 160, 0.5, 0.12, 12, 55, 700};
    if (choice < (winter ? 5 : 2))
        return {"81", 30, 0.5, 0.03, 4, 82, 330};
    return {"A1", between(random, 130, 230), 0.25, between(random, 0.02, 0.11), 18, 84, 1500};
}

DumpTour makeTour(QRandomGenerator& random, const QDate& day, int hour, std::size_t samples, int kilometres)
{
    const auto style = styleFor(random, day.month());
    samples = std::min(samples, style.mostSamples);
    const Terrain terrain(random, style.steepness);
    DumpTour tour{.sportCode = style.sportCode,
                  .month = day.month(),
                  .day = day.day(),
                  .hour = hour,
                  .minute = random.bounded(60),
                  .distanceAtStart = static_cast<std::int16_t>(kilometres),
                  .altitudeAtStart = static_cast<std::int16_t>(homeAltitude + random.bounded(80)),
                  .pulseAtStart = static_cast<std::int16_t>(74 + random.bounded(24)),
                  .samples = {},
                  .secondsOfLastSample = random.bounded(sampleInterval)};

    const auto season = std::cos((day.dayOfYear() - 200) / 365.0 * 2 * std::numbers::pi);
    const auto morningTemperature = 11 + 9 * season + between(random, -3, 3);
    double effort = 1;
    double speed = 0;
    double distance = 0;
    double pulse = tour.pulseAtStart;
    int stopped = 0;
    for (std::size_t i = 0; i < samples; ++i) {
        effort = std::clamp(effort + between(random, -0.08, 0.08), 0.7, 1.25);
        if (stopped == 0 && random.bounded(140) == 0)
            stopped = 1 + random.bounded(9);
        const bool standing = stopped > 0;
        stopped -= standing;

        const auto grade = terrain.grade(distance);
        const bool coasting = !standing && grade < -0.035;
        const auto power = standing || coasting ? 0.0 : style.power * effort * (grade > 0.02 ? 1.15 : 1.0);
        const auto wanted =
            standing ? 0.0 : std::min(steadySpeed(power, grade, 84, style.drag), style.topSpeed);
        speed += (wanted - speed) * (standing ? 1.0 : 0.6);
        distance += speed * sampleInterval;

        const auto wantedPulse = 72 + 92 * std::min(power / (style.power * 1.15), 1.25);
        pulse += (wantedPulse - pulse) * (wantedPulse > pulse ? 0.16 : 0.09);
        const auto height = terrain.altitude(distance);
        const auto hours = static_cast<double>(i) * sampleInterval / 3600;
        const auto temperature = morningTemperature + 2.5 * std::sin(hours / 2) - height * 0.0065;
        const bool pedalling = !standing && !coasting && style.cadence > 0;
        tour.samples.push_back(
            {.temperature = static_cast<std::int16_t>(std::clamp(std::lround(temperature), 0L, 60L)),
             .cadence = static_cast<std::int16_t>(pedalling ? style.cadence - 8 + random.bounded(17) : 0),
             .altitude = tour.altitudeAtStart + height,
             .distance = distance,
             .pulse = pulse + between(random, -1, 1)});
    }
    return tour;
}

/// What the device sums up over all tours.
class Totals {
public:
    void add(const DumpTour& tour)
    {
        double last = tour.altitudeAtStart;
        for (const auto& sample : tour.samples) {
            (sample.altitude > last ? _up : _down) += std::abs(sample.altitude - last);
            _highest = std::max(_highest, sample.altitude);
            last = sample.altitude;
        }
        _seconds += static_cast<int>(tour.samples.size()) * sampleInterval;
    }

    int up() const { return static_cast<int>(_up); }
    int down() const { return static_cast<int>(_down); }
    int highest() const { return static_cast<int>(_highest); }
    int minutes() const { return _seconds / 60; }

private:
    double _up = 0;
    double _down = 0;
    double _highest = homeAltitude;
    int _seconds = 0;
};

} // namespace

QByteArray RideGenerator::dump() const
{
    QRandomGenerator random(seed);
    const auto count = static_cast<std::uint32_t>(std::clamp(tours, 0, mostTours));
    const auto recordsPerTour = count == 0 ? 0 : std::min(recordSlots / count, 140U);

    std::vector<DumpTour> rides;
    std::uint32_t records = 0;
    double kilometres = 8200;
    Totals totals;
    const QDate newYear(year, 1, 1);
    QDate lastDay;
    int ridesToday = 0;
    for (std::uint32_t i = 0; i < count; ++i) {
        // Rides are spread over the year, at most two a day.
        const auto gap = static_cast<int>(365 / count);
        const auto day =
            newYear.addDays(static_cast<int>(i * 365 / count) + (gap > 1 ? random.bounded(gap) : 0));
        ridesToday = day == lastDay ? ridesToday + 1 : 0;
        lastDay = day;

        // A tour can wrap if it has two data records: a last-data record would not be understood in front.
        const bool wraps = wrapped && i + 1 == count;
        const auto least = wraps ? samplesPerRecord + 1U : 1U;
        const auto most = std::max((recordsPerTour - 2) * samplesPerRecord, least);
        const auto samples = std::max(most - random.bounded(most * 3 / 4 + 1), least);
        rides.push_back(makeTour(random, day, 7 + random.bounded(4) + 8 * ridesToday, samples,
                                 static_cast<int>(kilometres)));
        kilometres += rides.back().samples.back().distance / 1000;
        totals.add(rides.back());
        records += DumpWriter::recordsFor(rides.back().samples.size());
    }

    const auto readOn = rides.empty() ? newYear : lastDay;
    const GeneralData settings{{QStringLiteral("Wheelsize"), 2096},
                               {QStringLiteral("Weight"), 74},
                               {QStringLiteral("Home Altitude"), homeAltitude},
                               {QStringLiteral("1st pulse upper bound"), 150},
                               {QStringLiteral("1st pulse lower bound"), 120},
                               {QStringLiteral("2nd pulse upper bound"), 175},
                               {QStringLiteral("2nd pulse lower bound"), 150},
                               {QStringLiteral("distance (end of last tour)"), static_cast<int>(kilometres)},
                               {QStringLiteral("1st countdown (m)"), 20},
                               {QStringLiteral("2nd countdown (m)"), 45},
                               {QStringLiteral("total up (end of last tour)"), totals.up()},
                               {QStringLiteral("total down (end of last tour)"), totals.down()},
                               {QStringLiteral("maximum altitude"), totals.highest()},
                               {QStringLiteral("total travel time (h)"), totals.minutes() / 60 % 100},
                               {QStringLiteral("total travel time (h100)"), totals.minutes() / 6000},
                               {QStringLiteral("total travel time (m)"), totals.minutes() % 60},
                               {QStringLiteral("Year"), year},
                               {QStringLiteral("Month"), readOn.month()},
                               {QStringLiteral("Day"), readOn.day()}};

    std::uint32_t firstSlot = 0;
    if (wrapped && count > 0) {
        const auto recordsOfLast = DumpWriter::recordsFor(rides.back().samples.size());
        const auto atFront = std::clamp(recordsOfLast / 3, 3U, recordsOfLast - 1);
        firstSlot = recordSlots - (records - atFront);
    }
    DumpWriter writer(settings, firstSlot);
    for (const auto& ride : rides)
        writer.addTour(ride);
    return writer.dump();
}

} // namespace ridelog
