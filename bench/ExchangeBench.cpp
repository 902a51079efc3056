// How long it takes to write tours for other programs, in memory, where no disk counts: as Training Center
// files, which has a promise, against appending the same bytes; the other forms are there to compare.
//
// exchange [TOURS [SAMPLES]] writes TOURS tours (1,000) with SAMPLES samples each (500).

#include "bench/MadeUpTours.h"
#include "bench/RatioReport.h"
#include "exchange/TourExport.h"
#include "platform/Defaults.h"
#include "platform/Log.h"

#include <QCoreApplication>

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

using namespace ridelog;

constexpr double promisedTime = 2000; // milliseconds

/// One after the other where a file holds no more than a tour.
QByteArray bytesOf(const ExportFormat& format, const Tours& tours)
{
    QByteArray bytes;
    const ExportSink sink([&bytes](QByteArrayView piece) { bytes += piece; }, [] { return true; });
    const ExportSource source{.name = QStringLiteral("Tours")};
    if (mayHoldSeveralTours(format)) {
        format.write(tours, source, sink);
    } else {
        for (const auto& tour : tours)
            format.write({tour}, source, sink);
    }
    return bytes;
}

void write(benchmark::State& state, const ExportFormat& format, const Tours& tours)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(bytesOf(format, tours).constData());
}

/// In pieces of a tour, as the format does.
void append(benchmark::State& state, const QByteArray& written, qsizetype tours)
{
    const auto piece = written.size() / tours + 1;
    for (auto _ : state) {
        QByteArray bytes;
        for (qsizetype at = 0; at < written.size(); at += piece)
            bytes += QByteArrayView(written).sliced(at, std::min(piece, written.size() - at));
        benchmark::DoNotOptimize(bytes.constData());
    }
}

int positiveWord(int argc, char** argv, int index, int otherwise)
{
    const int number = index < argc ? std::atoi(argv[index]) : otherwise;
    if (number > 0)
        return number;
    std::fprintf(stderr, "usage: exchange [TOURS [SAMPLES]]\n");
    std::exit(2);
}

} // namespace

int main(int argc, char** argv)
{
    setLogLevel(LogLevel::none);
    RatioReport report(argc, argv);
    const QCoreApplication application(argc, argv);
    const int count = positiveWord(argc, argv, 1, 1000);
    const int samples = positiveWord(argc, argv, 2, 500);

    const auto tours = makeTours(0, count, samples);
    const Defaults defaults{QString()};
    const auto formats = exportFormats(defaults);
    const auto written = bytesOf(*formatNamed(formats, QStringLiteral("tcx")), tours);
    std::printf("%d tours of %d samples: %.1f MB as Training Center files\n", count, samples,
                static_cast<double>(written.size()) / 1e6);

    const auto measure = [](const std::string& name, auto&& run) {
        benchmark::RegisterBenchmark(name.c_str(), run)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime()
            ->Repetitions(5)
            ->ReportAggregatesOnly();
    };
    measure("Append", [&](benchmark::State& state) { append(state, written, count); });
    for (const auto& format : formats)
        measure("Write-" + format->name().toStdString(),
                [&](benchmark::State& state) { write(state, *format, tours); });
    report.run();

    const auto time = report.medianOf("Write-tcx");
    std::printf("Write-tcx: %.0f ms (at most %.0f); %.1f x Append\n", time, promisedTime,
                time / report.medianOf("Append"));
    return time <= promisedTime ? 0 : 1;
}
