#pragma once

#include "exchange/ExportFormat.h"

namespace ridelog {

class Defaults;

/// The report of several tours, or of those of a period: what they add up to, a table of them, and a section
/// for each. It is written piece by piece; memory does not grow with the tours.
void writePeriodReport(const Tours& tours, const ExportSource& source, const Defaults& defaults,
                       const ExportSink& sink);

} // namespace ridelog
