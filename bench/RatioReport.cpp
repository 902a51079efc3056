#include "bench/RatioReport.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <limits>
#include <vector>

namespace ridelog {
namespace {

/// The usual report on the console, which also keeps the median times.
class MedianReporter final : public benchmark::ConsoleReporter {
public:
    explicit MedianReporter(std::map<std::string, double>& medians) : _medians(medians) {}

    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const auto& run : runs) {
            if (run.run_type == Run::RT_Aggregate && run.aggregate_name == "median")
                _medians[nameOf(run)] = run.GetAdjustedRealTime();
        }
        ConsoleReporter::ReportRuns(runs);
    }

private:
    /// Without what the benchmark library adds: NAME, or NAME/ARGUMENTS.
    static std::string nameOf(const Run& run)
    {
        const auto& name = run.run_name;
        return name.args.empty() ? name.function_name : name.function_name + '/' + name.args;
    }

    std::map<std::string, double>& _medians;
};

} // namespace

RatioReport::RatioReport(int& argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
}

void RatioReport::run()
{
    MedianReporter reporter(_medians);
    benchmark::RunSpecifiedBenchmarks(&reporter);
}

double RatioReport::ratioOf(const std::string& measured, const std::string& baseline, double limit) const
{
    const auto found = _medians.find(measured);
    const auto base = _medians.find(baseline);
    if (found == _medians.end() || base == _medians.end())
        return std::numeric_limits<double>::infinity();
    const auto ratio = found->second / base->second;
    std::printf("%s: %.2f x %s (at most %.2f)\n", measured.c_str(), ratio, baseline.c_str(), limit);
    return ratio;
}

double RatioReport::medianOf(const std::string& measured) const
{
    const auto found = _medians.find(measured);
    return found == _medians.end() ? std::numeric_limits<double>::infinity() : found->second;
}

} // namespace ridelog
