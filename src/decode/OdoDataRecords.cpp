#include "decode/DecodeLog.h"
#include "decode/OdoData.h"

#include <algorithm>

namespace ridelog {
namespace {

using namespace DumpLayout;

// Offsets within a record, counted from its first character.
constexpr std::uint32_t typeCodeAt = 2;
constexpr std::uint32_t secondFieldAt = 5;
constexpr std::uint32_t cadenceAt = 7;
constexpr std::uint32_t firstSampleAt = 10;

/// Altitude steps up to 16 m are recorded as they are, larger ones in steps of 7 m.
constexpr std::int16_t altitudeChangeOfCode(int code)
{
    if (code > 16)
        return static_cast<std::int16_t>(7 * code - 96);
    if (code < -16)
        return static_cast<std::int16_t>(7 * code + 96);
    return static_cast<std::int16_t>(code);
}

/// `value` as a signed number of its lowest `bits` bits.
constexpr int signedBits(unsigned value, unsigned bits)
{
    const auto sign = 1U << (bits - 1);
    const auto low = value & (2 * sign - 1);
    return static_cast<int>(low ^ sign) - static_cast<int>(sign);
}

} // namespace

void OdoData::WordToDataRect(std::int16_t word, DataRect& rect)
{
    const auto bits = static_cast<std::uint16_t>(word);
    rect.pulseChange = static_cast<std::int16_t>(signedBits(bits >> 12U, 4) * 2);
    rect.altitudeChange = altitudeChangeOfCode(signedBits(bits >> 6U, 6));
    rect.distance = static_cast<std::int32_t>(bits & 0x3FU) * 10;
}

void OdoData::scanRecords()
{
    const auto size = static_cast<std::uint64_t>(_data.size());
    while (_bufPos <= lastRecordStart && _bufPos + recordSize <= size) {
        _bufPos += typeCodeAt;
        if (typeCodeIs("AA", _bufPos)) {
            qCDebug(lcDecode, "handleAAEntry");
            handleAAEntry();
        } else if (typeCodeIs("BB", _bufPos)) {
            handleBBEntry();
        } else if (typeCodeIs("CC", _bufPos)) {
            qCDebug(lcDecode, "handleCCEntry");
            handleCCEntry();
        } else if (typeCodeIs("DD", _bufPos)) {
            qCDebug(lcDecode, "handleDDEntry");
            handleDDEntry();
        } else {
            return;
        }
    }
}

// Each handler finds _bufPos at the record's type code and leaves it at the next record. A refused record
// leaves it where it is, so that the scan goes on two characters further: it always moves forward.

void OdoData::handleAAEntry()
{
    ++_scan.localCounter;
    qCDebug(lcDecode, "TOUR START ---------- pos: %u", _bufPos);
    qCDebug(lcDecode, "* %zu", _scan.intermediateSamples.size());
    if (_scan.flTourRunning) {
        qCWarning(lcDecode, "ERROR: Tour start while tour running!");
        return;
    }
    _scan.flTourRunning = true;
    _scan.samples.clear();

    const auto start = _bufPos - typeCodeAt;
    TourDictionary tour;
    const auto code = QByteArrayView(_data).sliced(start, 2);
    if (const auto* sport = std::ranges::find(sports, code, &Sport::code); sport != sports.end())
        tour.type = sport->type.toString();
    tour.recordOffsetDD = offsetOfAddress(hexWord(start + 5));
    tour.hour = decimalPair(start + 10);
    tour.min = decimalPair(start + 12);
    tour.month = decimalPair(start + 15);
    tour.day = decimalPair(start + 17);
    tour.distanceAtStart = hexWord(start + 20);
    tour.altitudeAtStart = hexWord(start + 30);
    tour.pulseAtStart = hexWord(start + 35);
    _scan.tour = std::move(tour);
    _bufPos = start + recordSize;
}

void OdoData::handleBBEntry()
{
    if (!_scan.flTourRunning) {
        if (_scan.flAlreadyIntermediate)
            qCDebug(lcDecode, "flAlreadyIntermediate");
        if (!_scan.flIntermediateTour) {
            _scan.flIntermediateTour = true;
            qCDebug(lcDecode, "=========== intermediate Tour start");
        }
    }
    const auto start = _bufPos - typeCodeAt;
    DataRect sample{.temperature = hexByte(start),
                    .endMarker = hexByte(start + secondFieldAt),
                    .cadence = hexByte(start + cadenceAt)};
    auto& samples = samplesInProgress();
    for (std::uint32_t slot = 0; slot < samplesPerRecord; ++slot) {
        WordToDataRect(hexWord(start + firstSampleAt + slot * groupSize), sample);
        addRecord(sample, samples);
    }
    _bufPos = start + recordSize;
}

void OdoData::handleCCEntry()
{
    qCDebug(lcDecode, "Tour last data");
    if (!_scan.flTourRunning && !_scan.flIntermediateTour) {
        qCWarning(lcDecode, "ERROR: LAST DATA WITHOUT TOUR");
        return;
    }
    const auto start = _bufPos - typeCodeAt;
    DataRect sample{.temperature = hexByte(start),
                    .endMarker = hexByte(start + secondFieldAt),
                    .cadence = hexByte(start + cadenceAt),
                    .lastData = 1};
    qCDebug(lcDecode, "Marker when tour exactly ended %d", sample.endMarker);
    const auto recordsToStore = sample.endMarker / sampleInterval + 1;
    qCDebug(lcDecode, "recordsToStore %d", recordsToStore);
    auto& samples = samplesInProgress();
    const auto stored = static_cast<std::uint32_t>(std::clamp(recordsToStore, 0, samplesPerRecord));
    for (std::uint32_t slot = 0; slot < stored; ++slot) {
        WordToDataRect(hexWord(start + firstSampleAt + slot * groupSize), sample);
        addRecord(sample, samples);
    }
    _bufPos = start + recordSize;
}

void OdoData::handleDDEntry()
{
    qCDebug(lcDecode, "---------- TOUR END");
    const auto start = _bufPos - typeCodeAt;
    qCDebug(lcDecode, "pos %u AA record offset %f", start + 5, realOffsetOfAddress(hexWord(start + 5)));
    if (_scan.flTourRunning && !_scan.flIntermediateTour) {
        qCDebug(lcDecode, "---- COUNT %zu", _scan.samples.size());
        finishTour();
        const auto& dict = *_toursArray.back()->tourDataDict();
        qCDebug(lcDecode, "count %zu day %d month %d", _toursArray.size(), *dict.day, *dict.month);
    }
    if (_scan.flIntermediateTour)
        _scan.flAlreadyIntermediate = true;
    _scan.flIntermediateTour = false;
    _scan.flTourRunning = false;
    _bufPos = start + recordSize;
}

void OdoData::addRecord(const DataRect& record, std::vector<DataRect>& to)
{
    // Only the first stretch of samples without a start is the tail of a tour; a later one is what is left of
    // an older tour, overwritten from its beginning.
    if (_scan.flAlreadyIntermediate && _scan.flIntermediateTour)
        return;
    to.push_back(record);
}

std::vector<DataRect>& OdoData::samplesInProgress()
{
    return _scan.flIntermediateTour ? _scan.intermediateSamples : _scan.samples;
}

void OdoData::finishTour()
{
    _scan.tour.tourData.assign(_scan.samples.begin(), _scan.samples.end());
    const auto tour = OdoTour::initWithOdoDataTourDict(std::move(_scan.tour), _now);
    tour->setDataIsBigEndian(false);
    _toursArray.push_back(tour);
}

void OdoData::finishWrappedTour()
{
    qCDebug(lcDecode, "Finished parsing %zu", _toursArray.size());
    const auto& tail = _scan.intermediateSamples;
    if (tail.empty())
        return;
    qCDebug(lcDecode, "adding last data because of intermediate tour %zu", tail.size());
    if (!_scan.flTourRunning) {
        qCWarning(lcDecode, "dropping %zu intermediate samples: no tour is running", tail.size());
        return;
    }
    finishTour();
    qCDebug(lcDecode, "adding intemediate tour count %zu", tail.size());
    const auto& tour = *_toursArray.back();
    _toursArray.back()->appendTourData(tail);
    qCDebug(lcDecode, "Last tour date %s", qUtf8Printable(tour.description()));
    qCDebug(lcDecode, "count %zu", tour.tourDataDict()->tourData.size());
}

} // namespace ridelog
