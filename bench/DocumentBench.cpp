// How long a large document takes to open and to save, against reading and writing the same bytes; how much
// memory it takes to open; for how much of a save's time the main thread is held when unsaved changes are
// kept aside; how the time of a merge grows with the number of tours; and how long the first statistics take.
//
// document [TOURS [SAMPLES]] measures documents of TOURS tours (10,000) with SAMPLES samples each (500).

#include "bench/MadeUpTours.h"
#include "bench/PeakMemory.h"
#include "bench/RatioReport.h"
#include "library/MyDocument.h"
#include "model/OdoStat.h"
#include "platform/Log.h"
#include "platform/WholeFile.h"

#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <optional>
#include <unistd.h>
#include <vector>

namespace {

using namespace ridelog;

constexpr double promisedOpen = 8;
constexpr double promisedSave = 3;
constexpr double promisedStoredForm = 0.1;
constexpr double promisedMerge = 2.2;
constexpr double promisedMemory = 4;      // times the file
constexpr double promisedStatistics = 20; // milliseconds per 1,000,000 series entries

void orExit(const std::optional<QString>& error)
{
    if (!error)
        return;
    std::fprintf(stderr, "%s\n", qPrintable(*error));
    std::exit(1);
}

struct Workload {
    QTemporaryDir folder;
    QString path;
    QByteArray bytes;
    Tours first;  ///< half of the tours of each list
    Tours second; ///< the other half
};

void readFile(benchmark::State& state, const Workload& load)
{
    for (auto _ : state) {
        QFile file(load.path);
        if (!file.open(QIODevice::ReadOnly))
            std::exit(1);
        const auto bytes = file.readAll();
        benchmark::DoNotOptimize(bytes.constData());
    }
}

void openDocument(benchmark::State& state, const Workload& load)
{
    for (auto _ : state) {
        auto document = std::make_unique<MyDocument>();
        orExit(document->open(load.path));
        benchmark::DoNotOptimize(document->toursArray().data());
        state.PauseTiming();
        document.reset();
        state.ResumeTiming();
    }
}

void writeFile(benchmark::State& state, const Workload& load)
{
    const auto path = QFile::encodeName(load.folder.filePath(QStringLiteral("plain")));
    for (auto _ : state) {
        const int file = ::open(path.constData(), O_CREAT | O_TRUNC | O_WRONLY, 0600);
        const auto size = static_cast<std::size_t>(load.bytes.size());
        if (file < 0 || ::write(file, load.bytes.constData(), size) != load.bytes.size() ||
            ::fsync(file) != 0)
            std::exit(1);
        ::close(file);
    }
}

void saveDocument(benchmark::State& state, const Workload& load)
{
    MyDocument document;
    orExit(document.open(load.path));
    for (auto _ : state)
        orExit(document.save());
}

void takeStoredForm(benchmark::State& state, const Workload& load)
{
    MyDocument document;
    orExit(document.open(load.path));
    for (auto _ : state) {
        auto form = document.storedForm();
        state.PauseTiming();
        form = nullptr;
        state.ResumeTiming();
    }
}

/// A merge comes once, upon tours that nobody has looked at for a while: with warm caches it is the size of
/// the processor's caches that is measured.
void coolCaches()
{
    static std::vector<char> other(std::size_t{128} << 20);
    for (std::size_t i = 0; i < other.size(); i += 64)
        ++other[i];
}

/// As many tours into as many.
void merge(benchmark::State& state, const Tours& present, const Tours& incoming)
{
    for (auto _ : state) {
        state.PauseTiming();
        auto document = std::make_unique<MyDocument>();
        document->setToursArray(present);
        coolCaches();
        state.ResumeTiming();
        if (document->addNewToursFromArray(incoming) != incoming.size())
            std::exit(1);
        state.PauseTiming();
        document.reset();
        state.ResumeTiming();
    }
}

/// One pass over all series of a document, which is the least that the first statistics have to do.
void passOverSeries(benchmark::State& state, const Workload& load)
{
    MyDocument document;
    orExit(document.open(load.path));
    for (auto _ : state) {
        std::int64_t sum = 0;
        for (const auto& tour : document.toursArray()) {
            for (const auto& entry : tour->data())
                sum += entry.altitude;
        }
        benchmark::DoNotOptimize(sum);
    }
}

/// Of a document just opened, none of whose tours has been asked for its climbs.
void firstStatistics(benchmark::State& state, const Workload& load)
{
    for (auto _ : state) {
        state.PauseTiming();
        auto document = std::make_unique<MyDocument>();
        orExit(document->open(load.path));
        coolCaches();
        state.ResumeTiming();
        OdoStat stat(WeekRule{}, document->toursArray().front()->date());
        stat.setToursArray(document->toursArray());
        benchmark::DoNotOptimize(stat.globalStat().distance);
        state.PauseTiming();
        document.reset();
        state.ResumeTiming();
    }
}

/// What a step to another year takes.
void stepOfAYear(benchmark::State& state, const Workload& load)
{
    MyDocument document;
    orExit(document.open(load.path));
    OdoStat stat(WeekRule{}, document.toursArray().front()->date());
    stat.setToursArray(document.toursArray());
    for (auto _ : state) {
        for (const auto period : {Period::year, Period::month, Period::week}) {
            stat.setStat(period, std::nullopt);
            benchmark::DoNotOptimize(stat.stat(period).distance);
        }
    }
}

int positiveWord(int argc, char** argv, int index, int otherwise)
{
    const int number = index < argc ? std::atoi(argv[index]) : otherwise;
    if (number > 0)
        return number;
    std::fprintf(stderr, "usage: document [TOURS [SAMPLES]]\n");
    std::exit(2);
}

} // namespace

int main(int argc, char** argv)
{
    setLogLevel(LogLevel::none);
    RatioReport report(argc, argv);
    const int tours = positiveWord(argc, argv, 1, 10'000);
    const int samples = positiveWord(argc, argv, 2, 500);

    Workload load;
    load.path = load.folder.filePath(QStringLiteral("tours.ridelog"));
    {
        MyDocument document;
        document.setToursArray(makeTours(0, tours, samples));
        orExit(document.saveAs(load.path));
    }
    const PeakMemory memory;
    {
        MyDocument document;
        orExit(document.open(load.path));
    }
    const auto risen = static_cast<double>(memory.risen());
    load.bytes = [&] {
        QFile file(load.path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }();
    const auto memoryRatio = risen / static_cast<double>(load.bytes.size());
    std::printf("%d tours of %d samples: %.1f MB; memory for opening it: %.2f x the file (at most %.0f)\n",
                tours, samples, static_cast<double>(load.bytes.size()) / 1e6, memoryRatio, promisedMemory);

    const auto present = makeTours(0, tours, samples);
    const auto incoming = makeTours(tours, tours, samples);
    const Tours halfPresent(present.begin(), present.begin() + tours / 2);
    const Tours halfIncoming(incoming.begin(), incoming.begin() + tours / 2);

    const auto measure = [](const char* name, auto&&... arguments) {
        benchmark::RegisterBenchmark(name, std::forward<decltype(arguments)>(arguments)...)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime()
            ->Repetitions(11)
            ->ReportAggregatesOnly();
    };
    measure("ReadFile", [&](benchmark::State& state) { readFile(state, load); });
    measure("Open", [&](benchmark::State& state) { openDocument(state, load); });
    measure("WriteFile", [&](benchmark::State& state) { writeFile(state, load); });
    measure("Save", [&](benchmark::State& state) { saveDocument(state, load); });
    measure("StoredForm", [&](benchmark::State& state) { takeStoredForm(state, load); });
    measure("MergeHalf", [&](benchmark::State& state) { merge(state, halfPresent, halfIncoming); });
    measure("Merge", [&](benchmark::State& state) { merge(state, present, incoming); });
    measure("PassOverSeries", [&](benchmark::State& state) { passOverSeries(state, load); });
    measure("FirstStatistics", [&](benchmark::State& state) { firstStatistics(state, load); });
    measure("StepOfAYear", [&](benchmark::State& state) { stepOfAYear(state, load); });
    report.run();

    const auto open = report.ratioOf("Open", "ReadFile", promisedOpen);
    const auto save = report.ratioOf("Save", "WriteFile", promisedSave);
    const auto storedForm = report.ratioOf("StoredForm", "Save", promisedStoredForm);
    const auto merged = report.ratioOf("Merge", "MergeHalf", promisedMerge);
    const auto first = report.medianOf("FirstStatistics");
    const auto statistics = first / (static_cast<double>(tours) * (samples + 1)) * 1e6;
    std::printf("FirstStatistics: %.2f ms per 1,000,000 series entries (at most %.0f)\n", statistics,
                promisedStatistics);
    if (const auto pass = report.medianOf("PassOverSeries"); std::isfinite(pass))
        std::printf("FirstStatistics: %.2f x PassOverSeries\n", first / pass);
    return open <= promisedOpen && save <= promisedSave && storedForm <= promisedStoredForm &&
                   merged <= promisedMerge && memoryRatio <= promisedMemory &&
                   statistics <= promisedStatistics
               ? 0
               : 1;
}
