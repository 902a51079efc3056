#pragma once

#include <QLoggingCategory>

namespace ridelog {

/// Log of the charts: every step of every repaint.
Q_DECLARE_LOGGING_CATEGORY(lcChart)

} // namespace ridelog
