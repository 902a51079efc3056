#pragma once

#include <string>

namespace ridelog {

/// Runs the registered benchmarks and answers how many times longer `measured` took than `baseline`, by the
/// median of their repetitions. Prints both and the ratio. Answers infinity if one of them did not run.
double ratioOf(const std::string& measured, const std::string& baseline, int argc, char** argv);

} // namespace ridelog
