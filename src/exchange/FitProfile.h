#pragma once

#include <cmath>
#include <cstdint>
#include <optional>

/// The part of the public FIT protocol and its profile that an activity needs: numbers and units of messages
/// and fields, under the names that the profile gives them.
namespace ridelog::Fit {

/// How a field's numbers are stored.
struct BaseType {
    std::uint8_t code;
    std::uint8_t size; ///< bytes
    std::int64_t lowest;
    std::int64_t highest;

    /// The value above the highest, which stands for "not recorded".
    constexpr std::int64_t invalid() const { return highest + 1; }
};

inline constexpr BaseType enumeration{0x00, 1, 0, 0xFE};
inline constexpr BaseType sint8{0x01, 1, -0x80, 0x7E};
inline constexpr BaseType uint8{0x02, 1, 0, 0xFE};
inline constexpr BaseType uint16{0x84, 2, 0, 0xFFFE};
inline constexpr BaseType uint32{0x86, 4, 0, 0xFFFFFFFE};

/// A field of a message: it stores (value + offset) × scale.
struct Field {
    std::uint8_t number;
    BaseType type;
    int scale = 1;
    int offset = 0;

    /// What a value becomes in the file; none if the field has no room for it.
    std::optional<std::int64_t> stored(double value) const
    {
        const double scaled = std::round((value + offset) * scale);
        const bool fits =
            scaled >= static_cast<double>(type.lowest) && scaled <= static_cast<double>(type.highest);
        return fits ? std::optional(static_cast<std::int64_t>(scaled)) : std::nullopt;
    }
};

// Dates are seconds since 1989-12-31T00:00:00Z. Values below the earliest are the time since a device was
// switched on.

inline constexpr std::int64_t epoch = 631'065'600; ///< seconds since 1970
inline constexpr std::int64_t earliestDate = 0x10000000;
inline constexpr std::int64_t latestDate = uint32.highest;

// Fields that messages have in common.

inline constexpr Field timestamp{253, uint32};
inline constexpr Field messageIndex{254, uint16};

// The messages. Times are seconds, distances and altitudes metres, speeds metres per second, pulses beats per
// minute, cadences revolutions per minute, powers watts, temperatures °C.

struct FileId {
    static constexpr std::uint16_t message = 0;
    static constexpr Field type{0, enumeration};
    static constexpr Field manufacturer{1, uint16};
    static constexpr Field product{2, uint16};
    static constexpr Field timeCreated{4, uint32};
};

struct Event {
    static constexpr std::uint16_t message = 21;
    static constexpr Field event{0, enumeration};
    static constexpr Field eventType{1, enumeration};
};

struct Record {
    static constexpr std::uint16_t message = 20;
    static constexpr Field altitude{2, uint16, 5, 500};
    static constexpr Field heartRate{3, uint8};
    static constexpr Field cadence{4, uint8};
    static constexpr Field distance{5, uint32, 100};
    static constexpr Field speed{6, uint16, 1000};
    static constexpr Field power{7, uint16};
    static constexpr Field temperature{13, sint8};
};

struct Lap {
    static constexpr std::uint16_t message = 19;
    static constexpr Field event{0, enumeration};
    static constexpr Field eventType{1, enumeration};
    static constexpr Field startTime{2, uint32};
    static constexpr Field totalElapsedTime{7, uint32, 1000};
    static constexpr Field totalTimerTime{8, uint32, 1000};
    static constexpr Field totalDistance{9, uint32, 100};
    static constexpr Field avgSpeed{13, uint16, 1000};
    static constexpr Field maxSpeed{14, uint16, 1000};
    static constexpr Field avgHeartRate{15, uint8};
    static constexpr Field maxHeartRate{16, uint8};
    static constexpr Field avgCadence{17, uint8};
    static constexpr Field maxCadence{18, uint8};
    static constexpr Field avgPower{19, uint16};
    static constexpr Field maxPower{20, uint16};
    static constexpr Field totalAscent{21, uint16};
    static constexpr Field totalDescent{22, uint16};
    static constexpr Field lapTrigger{24, enumeration};
    static constexpr Field sport{25, enumeration};
    static constexpr Field avgTemperature{50, sint8};
    static constexpr Field maxTemperature{51, sint8};
};

struct Session {
    static constexpr std::uint16_t message = 18;
    static constexpr Field event{0, enumeration};
    static constexpr Field eventType{1, enumeration};
    static constexpr Field startTime{2, uint32};
    static constexpr Field sport{5, enumeration};
    static constexpr Field totalElapsedTime{7, uint32, 1000};
    static constexpr Field totalTimerTime{8, uint32, 1000};
    static constexpr Field totalDistance{9, uint32, 100};
    static constexpr Field avgSpeed{14, uint16, 1000};
    static constexpr Field maxSpeed{15, uint16, 1000};
    static constexpr Field avgHeartRate{16, uint8};
    static constexpr Field maxHeartRate{17, uint8};
    static constexpr Field avgCadence{18, uint8};
    static constexpr Field maxCadence{19, uint8};
    static constexpr Field avgPower{20, uint16};
    static constexpr Field maxPower{21, uint16};
    static constexpr Field totalAscent{22, uint16};
    static constexpr Field totalDescent{23, uint16};
    static constexpr Field firstLapIndex{25, uint16};
    static constexpr Field numLaps{26, uint16};
    static constexpr Field trigger{28, enumeration};
    static constexpr Field avgTemperature{57, sint8};
    static constexpr Field maxTemperature{58, sint8};
};

struct Activity {
    static constexpr std::uint16_t message = 34;
    static constexpr Field totalTimerTime{0, uint32, 1000};
    static constexpr Field numSessions{1, uint16};
    static constexpr Field type{2, enumeration};
    static constexpr Field event{3, enumeration};
    static constexpr Field eventType{4, enumeration};
    static constexpr Field localTimestamp{5, uint32}; ///< of the clock on the wall
};

// What enumerations stand for.

namespace FileType {
enum : std::uint8_t { activity = 4 };
}
namespace Manufacturer {
enum : std::uint8_t { development = 255 };
}
namespace EventOf {
enum : std::uint8_t { timer = 0, lap = 9, activity = 26 };
}
namespace EventType {
enum : std::uint8_t { start = 0, stop = 1, stopAll = 4 };
}
namespace Sport {
enum : std::uint8_t { generic = 0, running = 1, cycling = 2 };
}
namespace LapTrigger {
enum : std::uint8_t { sessionEnd = 7 };
}
namespace SessionTrigger {
enum : std::uint8_t { activityEnd = 0 };
}
namespace ActivityType {
enum : std::uint8_t { manual = 0 };
}

} // namespace ridelog::Fit
