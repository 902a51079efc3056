#pragma once

#include <QLoggingCategory>

namespace ridelog {

/// Log of the tour model.
Q_DECLARE_LOGGING_CATEGORY(lcTour)

} // namespace ridelog
