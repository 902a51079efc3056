// The record stream, through whole dumps.

#include "decode/OdoData.h"
#include "simulator/DumpWriter.h"
#include "tests/support/Dates.h"
#include "tests/support/LogCapture.h"

#include <gtest/gtest.h>

namespace ridelog {
namespace {

using Record = DumpWriter::Record;

constexpr Record start{0xA1AA, 0x0140, 0x0800, 0x0310, 0x04B0, 0, 0x01F4, 0x005A};
constexpr Record data{0x12BB, 0x0050, 0x1104, 0x1104, 0x1104, 0x1104, 0x1104, 0x1104};
constexpr Record end{0x00DD, 0x0130};

/// A last-data record whose tour ended so many seconds into it.
constexpr Record lastData(unsigned marker)
{
    return {0x12CC, static_cast<std::uint16_t>(marker << 8U | 0x50U), 0x0001, 0x0002, 0x0003, 0x0004, 0x0005,
            0x0006};
}

QByteArray dumpOf(const std::vector<Record>& records)
{
    DumpWriter writer;
    for (const auto& record : records)
        EXPECT_TRUE(writer.addRecord(record));
    return writer.dump();
}

OdoData decode(const QByteArray& dump)
{
    return OdoData::initWithData(dump, berlin(2007, 12, 31));
}

/// How many samples each tour of the stream has.
std::vector<std::size_t> samplesOf(const std::vector<Record>& records)
{
    std::vector<std::size_t> counts;
    const auto decoded = decode(dumpOf(records));
    for (const auto& tour : decoded.toursArray())
        counts.push_back(tour->tourData().size());
    return counts;
}

using Counts = std::vector<std::size_t>;

TEST(RecordStream, StartRecordFillsTheTourDictionary)
{
    const auto decoded = decode(dumpOf({start, data, end}));
    ASSERT_EQ(decoded.toursArray().size(), 1U);
    const auto& tour = *decoded.toursArray().front();
    const auto& dictionary = *tour.tourDataDict();
    EXPECT_EQ(dictionary.type, QStringLiteral("Bike"));
    EXPECT_EQ(dictionary.recordOffsetDD, 805);
    EXPECT_EQ(dictionary.hour, 8);
    EXPECT_EQ(dictionary.min, 0);
    EXPECT_EQ(dictionary.month, 3);
    EXPECT_EQ(dictionary.day, 10);
    EXPECT_EQ(dictionary.distanceAtStart, 1200);
    EXPECT_EQ(dictionary.altitudeAtStart, 500);
    EXPECT_EQ(dictionary.pulseAtStart, 90);
    EXPECT_EQ(tour.description().toStdString(), "2007-03-10 08:00:00 +0100");
    EXPECT_FALSE(tour.dataIsBigEndian());
    EXPECT_EQ(tour.data().back().altitude, 500 + 6 * 4);
}

TEST(RecordStream, SportCodesAreComparedAsPrinted)
{
    const auto typeOf = [](const char* code) {
        auto dump = dumpOf({start, data, end});
        dump.replace(DumpLayout::recordAreaOffset, 2, code);
        return decode(dump).toursArray().front()->type();
    };
    EXPECT_EQ(typeOf("81"), QStringLiteral("Jogging"));
    EXPECT_EQ(typeOf("91"), QStringLiteral("Ski"));
    EXPECT_EQ(typeOf("B1"), QStringLiteral("Ski-Bike"));
    EXPECT_EQ(typeOf("C1"), std::nullopt);
    EXPECT_EQ(typeOf("a1"), std::nullopt);
    EXPECT_EQ(typeOf("9H"), std::nullopt) << "counts as much as A1, but is printed otherwise";
}

TEST(RecordStream, EndMarkerTellsHowManySamplesTheLastRecordHas)
{
    for (const auto& [marker, samples] :
         {std::pair{0U, 1U}, {19U, 1U}, {20U, 2U}, {45U, 3U}, {119U, 6U}, {200U, 6U}, {255U, 6U}})
        EXPECT_EQ(samplesOf({start, data, lastData(marker), end}), Counts{6 + samples}) << marker;
}

TEST(RecordStream, SamplesCarryTheFieldsOfTheirRecord)
{
    const auto tour = decode(dumpOf({start, data, lastData(45), end})).toursArray().front();
    const auto samples = tour->tourData();
    EXPECT_EQ(samples[0], (DataRect{.temperature = 18,
                                    .endMarker = 0,
                                    .cadence = 80,
                                    .pulseChange = 2,
                                    .altitudeChange = 4,
                                    .distance = 40}));
    EXPECT_EQ(samples[5], samples[0]);
    EXPECT_EQ(samples[6],
              (DataRect{.temperature = 18, .endMarker = 45, .cadence = 80, .distance = 10, .lastData = 1}));
    EXPECT_EQ(samples[8].distance, 30);
}

TEST(RecordStream, SampleWords)
{
    struct Case {
        std::uint16_t word;
        int pulse, altitude, distance;
    };
    for (const auto& [word, pulse, altitude, distance] :
         {Case{0x7FFF, 14, -1, 630}, Case{0x8000, -16, 0, 0}, Case{0xF000, -2, 0, 0}, Case{0x07C0, 0, 121, 0},
          Case{0x0440, 0, 23, 0}, Case{0x0400, 0, 16, 0}, Case{0x0800, 0, -128, 0}, Case{0x0BC0, 0, -23, 0},
          Case{0x0C00, 0, -16, 0}, Case{0x0C40, 0, -15, 0}, Case{0x0001, 0, 0, 10}}) {
        DataRect rect{.temperature = 5, .lastData = 1};
        OdoData::WordToDataRect(static_cast<std::int16_t>(word), rect);
        EXPECT_EQ(rect, (DataRect{.temperature = 5,
                                  .pulseChange = static_cast<std::int16_t>(pulse),
                                  .altitudeChange = static_cast<std::int16_t>(altitude),
                                  .distance = distance,
                                  .lastData = 1}))
            << word;
    }
}

TEST(RecordStream, ErasedMemoryHasNoTours)
{
    const LogCapture log;
    EXPECT_EQ(samplesOf({}), Counts{});
    EXPECT_EQ(log.lines().back(), QStringLiteral("localCounter 0, arrayCounter: 0"));
}

TEST(RecordStream, StartWhileATourRunsIsRefused)
{
    const LogCapture log;
    EXPECT_EQ(samplesOf({start, data, end, start, data, start, data, end}), Counts{6})
        << "the scan ends there";
    EXPECT_EQ(log.errors(), QStringList(QStringLiteral("ERROR: Tour start while tour running!")));
    EXPECT_TRUE(log.lines().contains(QStringLiteral("localCounter 3, arrayCounter: 1")));
}

TEST(RecordStream, ScanGoesOnTwoCharactersBehindARefusedRecord)
{
    // Behind the refused start the next type code is read from a separator and a digit: with a "D" as
    // separator they make a tour end, two characters off the grid.
    auto dump = dumpOf({start, data, {0xA1AA, 0xD140}});
    const qsizetype refused = DumpLayout::recordAreaOffset + 2 * DumpLayout::recordSize;
    dump[refused + 4] = 'D';
    const auto decoded = decode(dump);
    ASSERT_EQ(decoded.toursArray().size(), 1U);
    EXPECT_EQ(decoded.toursArray().front()->tourData().size(), 6U);
}

TEST(RecordStream, RefusalsOverAndOverComeToAnEnd)
{
    auto dump = DumpWriter().dump();
    std::fill(dump.begin() + DumpLayout::recordAreaOffset, dump.end(), 'C');
    EXPECT_TRUE(decode(dump).toursArray().empty());
    std::fill(dump.begin() + DumpLayout::recordAreaOffset, dump.end(), 'A');
    EXPECT_TRUE(decode(dump).toursArray().empty());
}

TEST(RecordStream, LastDataFirstOfAllIsRefused)
{
    const LogCapture log;
    EXPECT_EQ(samplesOf({lastData(0), start, data, end}), Counts{});
    EXPECT_EQ(log.errors(), QStringList(QStringLiteral("ERROR: LAST DATA WITHOUT TOUR")));
}

TEST(RecordStream, TailInFrontIsStitchedToTheTourThatStillRuns)
{
    const auto decoded = decode(dumpOf({data, lastData(45), end, start, data, data, end, start, data}));
    ASSERT_EQ(decoded.toursArray().size(), 2U);
    EXPECT_EQ(decoded.toursArray()[0]->tourData().size(), 12U);
    const auto& stitched = *decoded.toursArray()[1];
    const auto samples = stitched.tourData();
    ASSERT_EQ(samples.size(), 6U + 9U);
    EXPECT_EQ(samples[5].lastData, 0) << "its own samples first";
    EXPECT_EQ(samples[6].distance, 40) << "then those from the front, in order";
    EXPECT_EQ(samples[14].distance, 30);
    EXPECT_EQ(stitched.data().size(), 7U) << "the series was built before";
}

TEST(RecordStream, WhatIsLeftOfAnOlderTourIsDropped)
{
    const LogCapture log;
    EXPECT_EQ(samplesOf({data, end, data, data, lastData(119), end, start, data, end, start, data}),
              (Counts{6, 12}));
    EXPECT_TRUE(log.lines().contains(QStringLiteral("flAlreadyIntermediate")));
}

TEST(RecordStream, TailWithoutATourToTakeItIsDropped)
{
    const LogCapture log;
    EXPECT_EQ(samplesOf({data, end, start, data, end}), Counts{6});
    EXPECT_EQ(log.errors(),
              QStringList(QStringLiteral("dropping 6 intermediate samples: no tour is running")));
}

TEST(RecordStream, StartWithinATailTakesPartOfItsEnd)
{
    // The end closes the tail and, with it, the tour that was started meanwhile.
    EXPECT_EQ(samplesOf({data, start, data, end, start, data, end}), Counts{6});
    // Without an end the tour still runs: it gets all that was collected.
    EXPECT_EQ(samplesOf({data, start, data, data}), Counts{18});
}

TEST(RecordStream, RunningTourWithoutATailIsNotAdded)
{
    EXPECT_EQ(samplesOf({start, data, end, start, data}), Counts{6});
    EXPECT_EQ(samplesOf({start, end}), Counts{0}) << "a tour of no samples is a tour";
}

TEST(RecordStream, RecordThatDoesNotLieWhollyInTheDumpEndsTheScan)
{
    std::vector<Record> records{start};
    records.resize(DumpLayout::recordSlots - 1, data);
    records.push_back(end);
    EXPECT_EQ(samplesOf(records), Counts{(DumpLayout::recordSlots - 2) * 6}) << "the last slot counts";

    // The five characters behind the last slot begin a record that only a longer dump can hold.
    records.back() = data;
    auto dump = dumpOf(records);
    dump.replace(81925, 5, "00DD ");
    EXPECT_TRUE(decode(dump).toursArray().empty());
    dump += QByteArray(34, ' ');
    EXPECT_TRUE(decode(dump).toursArray().empty());
    dump += ' ';
    EXPECT_EQ(decode(dump).toursArray().size(), 1U);
    dump += DumpWriter().dump().mid(DumpLayout::recordAreaOffset);
    EXPECT_EQ(decode(dump).toursArray().size(), 1U);
}

TEST(RecordStream, NothingCarriesOverFromOneDumpToTheNext)
{
    const auto wrapped = dumpOf({data, lastData(45), end, start, data});
    const auto plain = dumpOf({start, data, end});
    decode(wrapped);
    EXPECT_EQ(decode(plain).toursArray().size(), 1U);
    EXPECT_EQ(decode(wrapped).toursArray().front()->tourData().size(), 15U);
}

TEST(RecordStream, EveryStepIsLogged)
{
    const LogCapture log;
    decode(dumpOf({data, end, start, lastData(45), end, start, data}));
    const char* expected[]{"parseGeneralData",
                           "=========== intermediate Tour start",
                           "handleDDEntry",
                           "---------- TOUR END",
                           "pos 810 AA record offset 765.000000",
                           "handleAAEntry",
                           "TOUR START ---------- pos: 847",
                           "* 6",
                           "handleCCEntry",
                           "Tour last data",
                           "Marker when tour exactly ended 45",
                           "recordsToStore 3",
                           "---- COUNT 3",
                           "count 1 day 10 month 3",
                           "Finished parsing 1",
                           "adding last data because of intermediate tour 6",
                           "adding intemediate tour count 6",
                           "Last tour date 2007-03-10 08:00:00 +0100",
                           "count 12",
                           "localCounter 2, arrayCounter: 2"};
    qsizetype at = -1;
    for (const auto* line : expected) {
        at = log.lines().indexOf(QString::fromLatin1(line), at + 1);
        ASSERT_GE(at, 0) << line;
    }
}

} // namespace
} // namespace ridelog
