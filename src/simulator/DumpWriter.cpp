#include "simulator/DumpWriter.h"

#include "decode/SampleWord.h"
#include "model/DataRect.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace ridelog {
namespace {

using namespace DumpLayout;
using Record = DumpWriter::Record;

constexpr char separator = ' ';
constexpr std::uint16_t erased = 0xFFFF;

std::int32_t offsetOfSlot(std::uint32_t slot)
{
    return static_cast<std::int32_t>(recordAreaOffset + slot * recordSize);
}

std::uint16_t addressOfSlot(std::uint32_t slot)
{
    return static_cast<std::uint16_t>(addressOfOffset(offsetOfSlot(slot)));
}

std::uint16_t word(unsigned firstByte, unsigned secondByte)
{
    return static_cast<std::uint16_t>((firstByte & 0xFFU) << 8U | (secondByte & 0xFFU));
}

/// A number up to 99 as the byte whose two printed digits show it.
unsigned decimalByte(int number)
{
    const auto digits = static_cast<unsigned>(std::abs(number) % 100);
    return digits / 10 << 4U | digits % 10;
}

QByteArray hexText(std::uint16_t value)
{
    return QByteArray::number(value, 16).toUpper().rightJustified(4, '0');
}

std::uint16_t nearestAltitudeBits(double change)
{
    const auto& changes = SampleWord::altitudeChanges;
    const auto* nearest =
        std::ranges::min_element(changes, {}, [=](auto step) { return std::abs(step - change); });
    return static_cast<std::uint16_t>((nearest - changes.begin()) << SampleWord::altitudeShift);
}

std::uint16_t nearestPulseBits(double change)
{
    const auto code = std::clamp(std::lround(change / 2), -8L, 7L);
    return static_cast<std::uint16_t>((static_cast<unsigned long>(code) & 0xFU) << SampleWord::pulseShift);
}

std::uint16_t nearestDistanceBits(double metres)
{
    return static_cast<std::uint16_t>(std::clamp(std::lround(metres / 10), 0L, 63L));
}

/// Turns measurements into sample words. It follows what a decoder will have summed up so far and writes the
/// step that comes nearest to the next measurement.
class SampleEncoder {
public:
    explicit SampleEncoder(const DumpTour& tour) : _altitude(tour.altitudeAtStart), _pulse(tour.pulseAtStart)
    {
    }

    std::uint16_t word(const DumpSample& sample)
    {
        const auto bits = static_cast<std::uint16_t>(nearestPulseBits(sample.pulse - _pulse) |
                                                     nearestAltitudeBits(sample.altitude - _altitude) |
                                                     nearestDistanceBits(sample.distance - _distance));
        _pulse += SampleWord::pulseChange(bits);
        _altitude += SampleWord::altitudeChange(bits);
        _distance += SampleWord::distance(bits);
        return bits;
    }

private:
    double _altitude;
    double _pulse;
    double _distance = 0;
};

} // namespace

DumpWriter::DumpWriter(GeneralData generalData, std::uint32_t firstSlot)
    : _generalData(std::move(generalData)), _firstSlot(firstSlot % recordSlots)
{
}

std::uint32_t DumpWriter::recordsFor(std::size_t samples)
{
    return 2 + static_cast<std::uint32_t>((samples + samplesPerRecord - 1) / samplesPerRecord);
}

std::uint32_t DumpWriter::freeRecords() const
{
    return recordSlots - static_cast<std::uint32_t>(_records.size());
}

std::uint32_t DumpWriter::slotAfter(std::size_t records) const
{
    return (_firstSlot + static_cast<std::uint32_t>(records)) % recordSlots;
}

bool DumpWriter::addRecord(const Record& record)
{
    if (freeRecords() == 0)
        return false;
    _records.push_back(record);
    return true;
}

bool DumpWriter::addTour(const DumpTour& tour)
{
    const auto needed = recordsFor(tour.samples.size());
    if (needed > freeRecords())
        return false;

    const auto startSlot = slotAfter(_records.size());
    const auto endSlot = slotAfter(_records.size() + needed - 1);
    addRecord({word(tour.sportCode.toUInt(nullptr, 16), TypeCode::tourStart), addressOfSlot(endSlot),
               word(decimalByte(tour.hour), decimalByte(tour.minute)),
               word(decimalByte(tour.month), decimalByte(tour.day)),
               static_cast<std::uint16_t>(tour.distanceAtStart), 0,
               static_cast<std::uint16_t>(tour.altitudeAtStart),
               static_cast<std::uint16_t>(tour.pulseAtStart)});

    SampleEncoder encoder(tour);
    for (std::size_t begin = 0; begin < tour.samples.size(); begin += samplesPerRecord) {
        const auto& first = tour.samples[begin];
        const auto count = std::min<std::size_t>(samplesPerRecord, tour.samples.size() - begin);
        const bool last = begin + count == tour.samples.size();
        const auto marker = (count - 1) * sampleInterval + static_cast<std::size_t>(tour.secondsOfLastSample);
        Record record;
        record.fill(erased);
        record[0] =
            word(static_cast<unsigned>(first.temperature), last ? TypeCode::lastData : TypeCode::data);
        record[1] = word(last ? static_cast<unsigned>(marker) : 0, static_cast<unsigned>(first.cadence));
        for (std::size_t i = 0; i < count; ++i)
            record[2 + i] = encoder.word(tour.samples[begin + i]);
        if (last)
            _lastDataSlot = slotAfter(_records.size());
        addRecord(record);
    }

    addRecord({TypeCode::tourEnd, addressOfSlot(startSlot)});
    _lastStartSlot = startSlot;
    _lastEndSlot = endSlot;
    return true;
}

GeneralData DumpWriter::completedGeneralData() const
{
    auto data = _generalData;
    const auto supply = [&data](QStringView name, std::int32_t value) {
        if (!data.contains(name.toString()))
            data.insert(name.toString(), value);
    };
    supply(u"next free memory offset", static_cast<std::int16_t>(addressOfSlot(slotAfter(_records.size()))));
    const auto offsetOr0 = [](std::optional<std::uint32_t> slot) {
        return slot ? offsetOfSlot(*slot) : offsetOfAddress(0);
    };
    supply(u"offset last CC record", offsetOr0(_lastDataSlot));
    supply(u"offset last DD record", offsetOr0(_lastEndSlot));
    supply(u"offset last compare record", offsetOr0(_lastStartSlot));
    return data;
}

QByteArray DumpWriter::dump() const
{
    QByteArray text;
    text.reserve(dumpSize);
    text += signature;
    text += separator;
    while (text.size() < dumpSize)
        text += hexText(erased) + separator;

    const auto put = [&text](std::uint32_t offset, const QByteArray& characters) {
        text.replace(static_cast<qsizetype>(offset), characters.size(), characters);
    };

    const auto generalData = completedGeneralData();
    for (const auto& field : generalDataFields) {
        const auto value = generalData.value(field.name.toString());
        switch (field.kind) {
        case FieldKind::hexWord:
            put(field.offset, hexText(static_cast<std::uint16_t>(value)));
            break;
        case FieldKind::address:
            put(field.offset, hexText(static_cast<std::uint16_t>(addressOfOffset(value))));
            break;
        case FieldKind::decimalPair:
            put(field.offset, hexText(static_cast<std::uint16_t>(decimalByte(value))).right(2));
            break;
        case FieldKind::decimalQuad:
            put(field.offset, QByteArray::number(std::abs(value) % 10000).rightJustified(4, '0'));
            break;
        }
    }

    const auto putRecord = [&put](std::uint32_t slot, const Record& record) {
        auto offset = static_cast<std::uint32_t>(offsetOfSlot(slot));
        for (const auto group : record) {
            put(offset, hexText(group));
            offset += groupSize;
        }
    };
    for (std::size_t i = 0; i < _records.size(); ++i)
        putRecord(slotAfter(i), _records[i]);

    const bool wrapped = _firstSlot + _records.size() > recordSlots;
    if (wrapped) {
        // The older tour's start is overwritten; its data, last data and end still stand.
        for (auto slot = slotAfter(_records.size()); slot != _firstSlot; ++slot) {
            const auto left = _firstSlot - slot;
            const bool isLastData = left == 2 && slot != slotAfter(_records.size());
            putRecord(slot, left == 1 ? Record{TypeCode::tourEnd}
                                      : Record{isLastData ? TypeCode::lastData : TypeCode::data});
        }
    }
    return text;
}

} // namespace ridelog
