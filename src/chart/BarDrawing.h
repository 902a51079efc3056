#pragma once

#include "chart/BarScaling.h"

#include <optional>

QT_FORWARD_DECLARE_CLASS(QPainter)

namespace ridelog {

/// Draws a chart of bars on white paper, from the painter's origin on. The marked bar stands out, also if it
/// has no height.
void drawBars(QPainter& painter, const BarScaling& scaling, std::optional<int> marked = {});

} // namespace ridelog
