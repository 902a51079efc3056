#pragma once

#include <map>
#include <string>

namespace ridelog {

/// Runs the registered benchmarks, prints their times, and compares the medians of their repetitions.
class RatioReport {
public:
    /// Takes the benchmark library's own options out of the program's words.
    RatioReport(int& argc, char** argv);

    /// Runs all that is registered.
    void run();

    /// How many times longer `measured` took than `baseline`; infinity if one of them did not run. Prints it
    /// beside the promised limit.
    double ratioOf(const std::string& measured, const std::string& baseline, double limit) const;

    /// The median time in the unit that it was registered with; infinity if it did not run.
    double medianOf(const std::string& measured) const;

private:
    std::map<std::string, double> _medians; ///< real times by name, with the arguments after a slash
};

} // namespace ridelog
