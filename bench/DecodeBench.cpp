// How long a full dump takes to become tours with their series and first summary values, against a bare loop
// that turns the same characters into words.

#include "bench/PeakMemory.h"
#include "bench/RatioReport.h"
#include "decode/OdoData.h"
#include "platform/Log.h"
#include "simulator/RideGenerator.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <malloc.h>
#include <vector>

namespace {

using namespace ridelog;

constexpr double promisedRatio = 3.0;
constexpr std::int64_t promisedMemory = 4 * 1024 * 1024;

/// A memory filled to the last record by a handful of long tours.
const QByteArray& fullDump()
{
    static const QByteArray dump = [] {
        std::vector<DumpTour> tours;
        DumpWriter writer;
        while (writer.freeRecords() > 3) {
            DumpTour tour{.month = 3, .day = static_cast<int>(tours.size()) + 1, .altitudeAtStart = 400};
            const auto records = std::min(writer.freeRecords(), 254U) - 2;
            DumpSample sample{.temperature = 18, .cadence = 80, .altitude = 400, .distance = 0, .pulse = 120};
            for (std::uint32_t i = 0; i < records * DumpLayout::samplesPerRecord; ++i) {
                sample.altitude += (i * 7919 % 23) - 11.0;
                sample.distance += 60.0 + (i * 104729 % 130);
                sample.pulse += (i * 31 % 13) - 6.0;
                tour.samples.push_back(sample);
            }
            writer.addTour(tour);
            tours.push_back(tour);
        }
        return writer.dump();
    }();
    return dump;
}

int digit(char character)
{
    return DumpDigits::hexValue(static_cast<unsigned char>(character));
}

void BareWords(benchmark::State& state)
{
    const auto& dump = fullDump();
    std::vector<std::int16_t> words(static_cast<std::size_t>(dump.size()) / DumpLayout::groupSize);
    for (auto _ : state) {
        const char* group = dump.constData();
        for (auto& word : words) {
            word = static_cast<std::int16_t>(
                ((digit(group[0]) * 16 + digit(group[1])) * 16 + digit(group[2])) * 16 + digit(group[3]));
            group += DumpLayout::groupSize;
        }
        benchmark::DoNotOptimize(words.data());
        benchmark::ClobberMemory();
    }
}
BENCHMARK(BareWords)->Repetitions(15)->ReportAggregatesOnly();

void Decode(benchmark::State& state)
{
    const auto& dump = fullDump();
    const auto now = CalendarDate::fromFields(2007, 12, 31, 12, 0, 0, QTimeZone("Europe/Berlin"));
    for (auto _ : state) {
        const auto decoded = OdoData::initWithData(dump, now);
        benchmark::DoNotOptimize(decoded.toursArray().data());
    }
}
BENCHMARK(Decode)->Repetitions(15)->ReportAggregatesOnly();

} // namespace

int main(int argc, char** argv)
{
    // Freed memory stays with the process, as it does in an application that has more on its heap than one
    // dump: what is measured is the decoding, not the system's clearing of pages.
    mallopt(M_TRIM_THRESHOLD, 64 * 1024 * 1024);
    RatioReport report(argc, argv);
    setLogLevel(LogLevel::none);
    const auto& dump = fullDump();
    const auto now = CalendarDate::now();
    const PeakMemory memory;
    const auto start = std::chrono::steady_clock::now();
    const auto decoded = OdoData::initWithData(dump, now);
    const std::chrono::duration<double, std::micro> first = std::chrono::steady_clock::now() - start;
    const auto risen = memory.risen();
    std::size_t samples = 0;
    for (const auto& tour : decoded.toursArray())
        samples += tour->data().size() - 1;
    std::printf("%zu tours, %zu samples; memory for decoding and holding them: %.2f MiB (at most %.0f)\n",
                decoded.toursArray().size(), samples, static_cast<double>(risen) / (1024 * 1024),
                static_cast<double>(promisedMemory) / (1024 * 1024));
    std::printf("the first decode of the process, with its tables and on fresh memory: %.0f us\n",
                first.count());
    report.run();
    const auto ratio = report.ratioOf("Decode", "BareWords", promisedRatio);
    return ratio <= promisedRatio && risen <= promisedMemory ? 0 : 1;
}
