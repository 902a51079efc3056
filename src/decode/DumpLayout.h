#pragma once

#include <QByteArrayView>
#include <QMap>
#include <QString>
#include <QStringView>

#include <array>
#include <cmath>
#include <cstdint>

namespace ridelog {

/// The device's settings and running totals, by name.
using GeneralData = QMap<QString, std::int32_t>;

/// Where things lie in a raw dump: the device's memory as text, one group of five characters per 16-bit word
/// (four hex digits and a separator). All offsets count characters from the start of the dump.
namespace DumpLayout {

inline constexpr std::uint32_t groupSize = 5;
inline constexpr std::uint32_t dumpSize = 81930;
inline constexpr char signature[] = "AFRO";
inline constexpr std::uint32_t generalDataOffset = 650;
inline constexpr std::uint32_t recordAreaOffset = 765;
/// A record begins at or before this offset.
inline constexpr std::uint32_t lastRecordStart = dumpSize - 1;

inline constexpr std::uint32_t groupsPerRecord = 8;
inline constexpr std::uint32_t recordSize = groupsPerRecord * groupSize;
/// Whole records that the memory has room for; the ring goes from the last to the first.
inline constexpr std::uint32_t recordSlots = (dumpSize - recordAreaOffset) / recordSize;
inline constexpr int samplesPerRecord = 6;

/// The dump offset of an address that the device's memory holds. Addresses are signed words.
constexpr double realOffsetOfAddress(std::int16_t address)
{
    return 2.5 * address + 5.0;
}

constexpr std::int32_t offsetOfAddress(std::int16_t address)
{
    return static_cast<std::int32_t>(realOffsetOfAddress(address));
}

/// The device address that offsetOfAddress turns into `offset`.
inline std::int16_t addressOfOffset(std::int32_t offset)
{
    return static_cast<std::int16_t>(std::lround((offset - 5) / 2.5));
}

/// How a field of the general data is printed.
enum class FieldKind {
    hexWord,     ///< four hex digits, a signed 16-bit number
    address,     ///< the same, converted to a dump offset
    decimalPair, ///< two decimal digits
    decimalQuad, ///< four decimal digits
};

struct GeneralDataField {
    std::uint32_t offset;
    FieldKind kind;
    QStringView name;
};

inline constexpr std::array<GeneralDataField, 28> generalDataFields{{
    {650, FieldKind::hexWord, u"Wheelsize"},
    {655, FieldKind::hexWord, u"Weight"},
    {660, FieldKind::hexWord, u"Home Altitude"},
    {665, FieldKind::hexWord, u"1st pulse upper bound"},
    {670, FieldKind::hexWord, u"1st pulse lower bound"},
    {675, FieldKind::hexWord, u"2nd pulse upper bound"},
    {680, FieldKind::hexWord, u"2nd pulse lower bound"},
    {685, FieldKind::decimalPair, u"1st countdown (s)"},
    {687, FieldKind::decimalPair, u"2nd countdown (s)"},
    {690, FieldKind::decimalPair, u"1st countdown (m)"},
    {692, FieldKind::decimalPair, u"2nd countdown (m)"},
    {695, FieldKind::hexWord, u"altitude correction"},
    {700, FieldKind::hexWord, u"(216) distance (end of last tour)"},
    {705, FieldKind::hexWord, u"distance (end of last tour)"},
    {710, FieldKind::hexWord, u"next free memory offset"},
    {715, FieldKind::decimalQuad, u"Year"},
    {720, FieldKind::decimalPair, u"Month"},
    {722, FieldKind::decimalPair, u"Day"},
    {725, FieldKind::hexWord, u"total up (end of last tour)"},
    {730, FieldKind::hexWord, u"total down (end of last tour)"},
    {735, FieldKind::hexWord, u"maximum altitude"},
    {740, FieldKind::decimalPair, u"total travel time (h)"},
    {742, FieldKind::decimalPair, u"total travel time (h100)"},
    {745, FieldKind::decimalPair, u"total travel time (s)"},
    {747, FieldKind::decimalPair, u"total travel time (m)"},
    {750, FieldKind::address, u"offset last CC record"},
    {755, FieldKind::address, u"offset last DD record"},
    {760, FieldKind::address, u"offset last compare record"},
}};

/// Where the fields of a record stand, counted from its first character. Group g begins at 5g. The header
/// byte comes first: a start record's sport code, else the temperature.
namespace RecordLayout {

inline constexpr std::uint32_t typeCode = 2;

// Tour start
inline constexpr std::uint32_t endAddress = 5;
inline constexpr std::uint32_t hour = 10;
inline constexpr std::uint32_t minute = 12;
inline constexpr std::uint32_t month = 15;
inline constexpr std::uint32_t day = 17;
inline constexpr std::uint32_t distanceAtStart = 20;
inline constexpr std::uint32_t altitudeAtStart = 30;
inline constexpr std::uint32_t pulseAtStart = 35;

// Data and last data
inline constexpr std::uint32_t endMarker = 5;
inline constexpr std::uint32_t cadence = 7;
inline constexpr std::uint32_t firstSample = 10;

// Tour end
inline constexpr std::uint32_t startAddress = 5;

} // namespace RecordLayout

/// The second byte of a record's first word, printed as two characters.
enum TypeCode : std::uint8_t { tourStart = 0xAA, data = 0xBB, lastData = 0xCC, tourEnd = 0xDD };

/// A sport as the dump's tour start records and the tours know it.
struct Sport {
    QByteArrayView code; ///< the two characters as printed; no other spelling counts
    QStringView type;
};

inline constexpr std::array<Sport, 4> sports{{
    {"81", u"Jogging"},
    {"91", u"Ski"},
    {"A1", u"Bike"},
    {"B1", u"Ski-Bike"},
}};

} // namespace DumpLayout
} // namespace ridelog
