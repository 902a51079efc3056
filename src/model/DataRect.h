#pragma once

#include <QByteArray>

#include <bit>
#include <cstdint>
#include <span>

namespace ridelog {

/// The device records one sample every so many seconds.
inline constexpr int sampleInterval = 20;

/// One sample of a tour, as the decoder stores it and documents keep it: 20 bytes, little-endian.
struct DataRect {
    std::int16_t temperature = 0; ///< °C
    std::int16_t endMarker = 0;   ///< second value of the record; in last data, the seconds the record covers
    std::int16_t cadence = 0;     ///< revolutions per minute
    std::int16_t pulseChange = 0; ///< since the previous sample, beats per minute
    std::int16_t altitudeChange = 0; ///< since the previous sample, metres
    std::uint16_t unused10 = 0;      ///< kept as read
    std::int32_t distance = 0;       ///< covered during the sample's 20 seconds, metres
    std::uint8_t flag = 0;           ///< 0 in what the decoder stores
    std::uint8_t lastData = 0;       ///< 1 for the samples of a tour's last-data record, else 0
    std::uint16_t unused18 = 0;      ///< kept as read

    bool operator==(const DataRect&) const = default;

    /// The 20 bytes in order, as 40 lower-case hex digits.
    QByteArray toHex() const;
};

static_assert(sizeof(DataRect) == 20, "a sample record is 20 bytes, without padding of the compiler's own");
static_assert(std::endian::native == std::endian::little, "sample records lie in memory as they are stored");

/// Turns records that were stored in big-endian order into the order of this machine, in place. The two flag
/// bytes become 0 or 1; the unused bytes stay as they are.
void convertFromBigEndian(std::span<DataRect> records);

} // namespace ridelog
