#include "decode/DecodeLog.h"
#include "decode/OdoData.h"
#include "decode/SampleWord.h"

#include <algorithm>
#include <span>

namespace ridelog {
namespace {

using namespace DumpLayout;

namespace Field = RecordLayout;

} // namespace

void OdoData::WordToDataRect(std::int16_t word, DataRect& rect)
{
    const auto bits = static_cast<std::uint16_t>(word);
    rect.pulseChange = SampleWord::pulseChange(bits);
    rect.altitudeChange = SampleWord::altitudeChange(bits);
    rect.distance = SampleWord::distance(bits);
}

void OdoData::scanRecords()
{
    const auto size = static_cast<std::uint64_t>(_data.size());
    while (_bufPos <= lastRecordStart && _bufPos + recordSize <= size) {
        _bufPos += Field::typeCode;
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

    const auto start = _bufPos - Field::typeCode;
    TourDictionary tour;
    const auto code = QByteArrayView(_data).sliced(start, 2);
    if (const auto* sport = std::ranges::find(sports, code, &Sport::code); sport != sports.end())
        tour.type = sport->type.toString();
    tour.recordOffsetDD = offsetOfAddress(hexWord(start + Field::endAddress));
    tour.hour = decimalPair(start + Field::hour);
    tour.min = decimalPair(start + Field::minute);
    tour.month = decimalPair(start + Field::month);
    tour.day = decimalPair(start + Field::day);
    tour.distanceAtStart = hexWord(start + Field::distanceAtStart);
    tour.altitudeAtStart = hexWord(start + Field::altitudeAtStart);
    tour.pulseAtStart = hexWord(start + Field::pulseAtStart);
    _bufPos = start + recordSize;
    // One allocation a tour: for the data records that follow and the last data behind them.
    tour.tourData.reserve(std::size_t{dataRecordsFrom(_bufPos) + 1} * samplesPerRecord);
    _scan.tour = std::move(tour);
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
    const auto start = _bufPos - Field::typeCode;
    const RecordHead head{.temperature = hexByte(start),
                          .endMarker = hexByte(start + Field::endMarker),
                          .cadence = hexByte(start + Field::cadence),
                          .lastData = 0};
    addRecords(start, samplesPerRecord, head);
    _bufPos = start + recordSize;
}

void OdoData::handleCCEntry()
{
    qCDebug(lcDecode, "Tour last data");
    if (!_scan.flTourRunning && !_scan.flIntermediateTour) {
        qCWarning(lcDecode, "ERROR: LAST DATA WITHOUT TOUR");
        return;
    }
    const auto start = _bufPos - Field::typeCode;
    const RecordHead head{.temperature = hexByte(start),
                          .endMarker = hexByte(start + Field::endMarker),
                          .cadence = hexByte(start + Field::cadence),
                          .lastData = 1};
    qCDebug(lcDecode, "Marker when tour exactly ended %d", head.endMarker);
    const auto recordsToStore = head.endMarker / sampleInterval + 1;
    qCDebug(lcDecode, "recordsToStore %d", recordsToStore);
    addRecords(start, static_cast<std::uint32_t>(std::clamp(recordsToStore, 0, samplesPerRecord)), head);
    _bufPos = start + recordSize;
}

void OdoData::handleDDEntry()
{
    qCDebug(lcDecode, "---------- TOUR END");
    const auto start = _bufPos - Field::typeCode;
    qCDebug(lcDecode, "pos %u AA record offset %f", start + Field::startAddress,
            realOffsetOfAddress(hexWord(start + Field::startAddress)));
    if (_scan.flTourRunning && !_scan.flIntermediateTour) {
        qCDebug(lcDecode, "---- COUNT %zu", _scan.tour.tourData.size());
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

void OdoData::addRecords(std::uint32_t record, std::uint32_t count, RecordHead head)
{
    // Only the first stretch of samples without a start is the tail of a tour; a later one is what is left of
    // an older tour, overwritten from its beginning.
    if (_scan.flAlreadyIntermediate && _scan.flIntermediateTour)
        return;
    auto& samples = _scan.flIntermediateTour ? _scan.intermediateSamples : _scan.tour.tourData;
    const auto held = samples.size();
    samples.resize(held + count);
    const auto* word = at(record + Field::firstSample);
    for (auto& sample : std::span(samples).subspan(held)) {
        sample.temperature = head.temperature;
        sample.endMarker = head.endMarker;
        sample.cadence = head.cadence;
        sample.lastData = head.lastData;
        WordToDataRect(HexToInt(word[0], word[1], word[2], word[3]), sample);
        word += groupSize;
    }
}

std::uint32_t OdoData::dataRecordsFrom(std::uint32_t record) const
{
    std::uint32_t count = 0;
    for (; record + recordSize <= static_cast<std::uint64_t>(_data.size()); record += recordSize) {
        if (!typeCodeIs("BB", record + Field::typeCode))
            break;
        ++count;
    }
    return count;
}

void OdoData::finishTour()
{
    const auto tour = OdoTour::initWithOdoDataTourDict(std::move(_scan.tour), _now);
    tour->setDataIsBigEndian(false);
    _toursArray.push_back(tour);
    _scan.tour = {};
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
