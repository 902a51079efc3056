#pragma once

#include "chart/ChartScaling.h"

namespace ridelog {

class JsonWriter;

/// Writes what a pass over the chart works out, without drawing it.
void writeChartLayout(JsonWriter& json, const ChartScaling::Chart& chart);

} // namespace ridelog
