#include "simulator/DumpWriter.h"

#include "decode/OdoData.h"
#include "tests/support/Dates.h"
#include "tests/support/Samples.h"

#include <QDir>
#include <QRandomGenerator>

#include <cmath>
#include <gtest/gtest.h>

namespace ridelog {
namespace {

OdoData decode(const QByteArray& dump)
{
    return OdoData::initWithData(dump, berlin(2007, 12, 31));
}

DumpTour randomTour(QRandomGenerator& random, int samples, int day)
{
    DumpTour tour{.sportCode =
                      DumpLayout::sports[static_cast<std::size_t>(random.bounded(4))].code.toByteArray(),
                  .month = 1 + random.bounded(12),
                  .day = day,
                  .hour = random.bounded(24),
                  .minute = random.bounded(60),
                  .distanceAtStart = static_cast<std::int16_t>(random.bounded(32768)),
                  .altitudeAtStart = static_cast<std::int16_t>(random.bounded(4000) - 400),
                  .pulseAtStart = static_cast<std::int16_t>(random.bounded(200)),
                  .secondsOfLastSample = random.bounded(20)};
    DumpSample sample{.altitude = static_cast<double>(tour.altitudeAtStart),
                      .pulse = static_cast<double>(tour.pulseAtStart)};
    for (int i = 0; i < samples; ++i) {
        if (i % 6 == 0) {
            sample.temperature = static_cast<std::int16_t>(random.bounded(256));
            sample.cadence = static_cast<std::int16_t>(random.bounded(256));
        }
        sample.altitude += random.bounded(241.0) - 120;
        sample.distance += random.bounded(625.0);
        sample.pulse += random.bounded(26.0) - 13;
        tour.samples.push_back(sample);
    }
    return tour;
}

/// What was measured and what was decoded differ by no more than half a step of the recording.
void expectDecoded(const DumpTour& written, const OdoTour& read)
{
    const auto& dictionary = *read.tourDataDict();
    const auto sport =
        std::ranges::find(DumpLayout::sports, QByteArrayView(written.sportCode), &DumpLayout::Sport::code);
    EXPECT_EQ(dictionary.type, sport->type.toString());
    EXPECT_EQ(dictionary.month, written.month);
    EXPECT_EQ(dictionary.day, written.day);
    EXPECT_EQ(dictionary.hour, written.hour);
    EXPECT_EQ(dictionary.min, written.minute);
    EXPECT_EQ(dictionary.distanceAtStart, written.distanceAtStart);
    EXPECT_EQ(dictionary.altitudeAtStart, written.altitudeAtStart);
    EXPECT_EQ(dictionary.pulseAtStart, written.pulseAtStart);
    ASSERT_EQ(dictionary.tourData.size(), written.samples.size());
    std::int32_t altitude = written.altitudeAtStart;
    std::int32_t pulse = written.pulseAtStart;
    std::int32_t distance = 0;
    for (std::size_t i = 0; i < written.samples.size(); ++i) {
        const auto& sample = written.samples[i];
        const auto& record = dictionary.tourData[i];
        altitude += record.altitudeChange;
        pulse += record.pulseChange;
        distance += record.distance;
        ASSERT_EQ(record.temperature, sample.temperature);
        ASSERT_EQ(record.cadence, sample.cadence);
        ASSERT_LE(std::abs(altitude - sample.altitude), 4.0) << i;
        ASSERT_LE(std::abs(pulse - sample.pulse), 1.5) << i;
        ASSERT_LE(std::abs(distance - sample.distance), 5.0) << i;
    }
}

TEST(DumpWriter, WhatItWritesTheDecoderReads)
{
    for (unsigned seed = 1; seed <= 40; ++seed) {
        QRandomGenerator random(seed);
        std::vector<DumpTour> tours;
        const auto count = 1 + random.bounded(28);
        for (int day = 1; day <= count; ++day)
            tours.push_back(randomTour(random, random.bounded(400), day));
        DumpWriter writer;
        for (const auto& tour : tours)
            ASSERT_TRUE(writer.addTour(tour));
        const auto dump = writer.dump();
        ASSERT_EQ(dump.size(), 81930);
        const auto decoded = decode(dump);
        ASSERT_EQ(decoded.toursArray().size(), tours.size());
        for (std::size_t i = 0; i < tours.size(); ++i)
            expectDecoded(tours[i], *decoded.toursArray()[i]);
    }
}

TEST(DumpWriter, RingMayBeginInAnySlot)
{
    QRandomGenerator random(7);
    const auto first = randomTour(random, 500, 1);
    const auto last = randomTour(random, 600, 2);
    const auto records = DumpWriter::recordsFor(500) + DumpWriter::recordsFor(600);
    // The last tour's tail of 3 to 101 records lies in front.
    for (std::uint32_t atFront = 3; atFront < DumpWriter::recordsFor(600); ++atFront) {
        DumpWriter writer({}, DumpLayout::recordSlots - (records - atFront));
        ASSERT_TRUE(writer.addTour(first) && writer.addTour(last));
        const auto decoded = decode(writer.dump());
        ASSERT_EQ(decoded.toursArray().size(), 2U) << atFront;
        expectDecoded(first, *decoded.toursArray()[0]);
        expectDecoded(last, *decoded.toursArray()[1]);
        EXPECT_EQ(decoded.toursArray()[0]->tourDataDict()->recordOffsetDD,
                  765 + 40 * static_cast<int>(DumpLayout::recordSlots - (records - atFront) +
                                              DumpWriter::recordsFor(500) - 1));
    }
}

TEST(DumpWriter, KnowsWhenTheMemoryIsFull)
{
    QRandomGenerator random(3);
    DumpWriter writer;
    EXPECT_EQ(writer.freeRecords(), 2029U);
    EXPECT_FALSE(writer.addTour(randomTour(random, 2028 * 6, 1)));
    EXPECT_EQ(writer.freeRecords(), 2029U);
    EXPECT_TRUE(writer.addTour(randomTour(random, 2027 * 6, 1)));
    EXPECT_EQ(writer.freeRecords(), 0U);
    EXPECT_FALSE(writer.addRecord({}));
    EXPECT_EQ(decode(writer.dump()).toursArray().front()->tourData().size(), 2027U * 6U);
}

TEST(DumpWriter, DecodedDumpsAreWrittenAgainAsTheyWere)
{
    SKIP_WITHOUT_SAMPLES();
    const QDir dumps(samplePath(QStringLiteral("dumps")));
    for (const auto& name : dumps.entryList({QStringLiteral("*.odo")}, QDir::Files)) {
        if (name == QStringLiteral("wrapped.odo"))
            continue; // the older tour's samples in it are not decoded
        const auto decoded = OdoData::initWithFile(dumps.filePath(name), berlin(2007, 12, 31));
        DumpWriter writer(decoded.generalDataDict());
        for (const auto& tour : decoded.toursArray()) {
            const auto& dictionary = *tour->tourDataDict();
            const auto sport = std::ranges::find(DumpLayout::sports, *dictionary.type,
                                                 [](const auto& one) { return one.type.toString(); });
            DumpTour again{.sportCode = sport->code.toByteArray(),
                           .month = *dictionary.month,
                           .day = *dictionary.day,
                           .hour = *dictionary.hour,
                           .minute = *dictionary.min,
                           .distanceAtStart = static_cast<std::int16_t>(*dictionary.distanceAtStart),
                           .altitudeAtStart = static_cast<std::int16_t>(*dictionary.altitudeAtStart),
                           .pulseAtStart = static_cast<std::int16_t>(*dictionary.pulseAtStart)};
            double distance = 0;
            for (std::size_t i = 0; i < dictionary.tourData.size(); ++i) {
                const auto& record = dictionary.tourData[i];
                const auto& entry = tour->data()[i + 1];
                distance += record.distance;
                again.samples.push_back({.temperature = record.temperature,
                                         .cadence = record.cadence,
                                         .altitude = static_cast<double>(entry.altitude),
                                         .distance = distance,
                                         .pulse = static_cast<double>(entry.pulse)});
            }
            again.secondsOfLastSample = dictionary.tourData.back().endMarker % 20;
            ASSERT_TRUE(writer.addTour(again));
        }
        EXPECT_TRUE(writer.dump() == decoded.data()) << qPrintable(name);
    }
}

} // namespace
} // namespace ridelog
