#include "bench/RatioReport.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <limits>
#include <map>
#include <vector>

namespace ridelog {
namespace {

/// The usual report on the console, which also keeps the median times by name.
class MedianReporter final : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const auto& run : runs) {
            if (run.run_type == Run::RT_Aggregate && run.aggregate_name == "median")
                medians[run.run_name.function_name] = run.GetAdjustedCPUTime();
        }
        ConsoleReporter::ReportRuns(runs);
    }

    std::map<std::string, double> medians;
};

} // namespace

double ratioOf(const std::string& measured, const std::string& baseline, int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    MedianReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    if (!reporter.medians.contains(measured) || !reporter.medians.contains(baseline))
        return std::numeric_limits<double>::infinity();
    const auto ratio = reporter.medians[measured] / reporter.medians[baseline];
    std::printf("%s: %.2f x %s\n", measured.c_str(), ratio, baseline.c_str());
    return ratio;
}

} // namespace ridelog
