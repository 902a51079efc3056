#pragma once

#include "decode/DumpLayout.h"

#include <QByteArray>

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace ridelog {

/// What the device measures at the end of a sample's 20 seconds.
struct DumpSample {
    // The device keeps these two once for every six samples: those of the first.
    std::int16_t temperature = 0; ///< °C, 0 to 255 (the device knows no frost)
    std::int16_t cadence = 0;     ///< revolutions per minute, 0 to 255

    double altitude = 0; ///< metres
    double distance = 0; ///< metres from the start of the tour
    double pulse = 0;    ///< beats per minute
};

/// A tour as the device would record it.
struct DumpTour {
    QByteArray sportCode = "A1"; ///< two characters, see DumpLayout::sports
    int month = 1;
    int day = 1;
    int hour = 0;
    int minute = 0;
    std::int16_t distanceAtStart = 0; ///< kilometres on the device's counter
    std::int16_t altitudeAtStart = 0; ///< metres
    std::int16_t pulseAtStart = 0;    ///< beats per minute
    std::vector<DumpSample> samples = {};
    int secondsOfLastSample = 0; ///< 0 to 19: when, within the last sample, the tour was stopped
};

/// Writes a device's memory as a raw dump: the mirror of the decoder. Records are laid into the ring of slots
/// one after the other; what is quantised away of one sample is made up for in the next, so that altitude,
/// distance and pulse do not drift.
///
/// Where the stream goes on from the last slot to the first, the slots between its end and its beginning hold
/// what is left of an older tour, as on a device that has been in use for long.
class DumpWriter {
public:
    /// A record as its eight 16-bit words.
    using Record = std::array<std::uint16_t, DumpLayout::groupsPerRecord>;

    /// The memory of a device with these settings, whose oldest record lies in slot `firstSlot`. Settings
    /// that are not given are 0, but for the places of free memory and of the last records, which follow from
    /// the tours.
    explicit DumpWriter(GeneralData generalData = {}, std::uint32_t firstSlot = 0);

    /// Slots that a tour with so many samples takes.
    static std::uint32_t recordsFor(std::size_t samples);
    std::uint32_t freeRecords() const;

    /// False, and nothing is written, if the tour does not fit into the slots that are left.
    bool addTour(const DumpTour& tour);
    /// Any record, for memories that no healthy device would hold. False if no slot is left.
    bool addRecord(const Record& record);

    /// The dump of 81,930 bytes.
    QByteArray dump() const;

private:
    std::uint32_t slotAfter(std::size_t records) const;
    GeneralData completedGeneralData() const;

    GeneralData _generalData;
    std::uint32_t _firstSlot;
    std::vector<Record> _records;
    std::optional<std::uint32_t> _lastStartSlot;
    std::optional<std::uint32_t> _lastDataSlot;
    std::optional<std::uint32_t> _lastEndSlot;
};

} // namespace ridelog
