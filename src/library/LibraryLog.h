#pragma once

#include <QLoggingCategory>

namespace ridelog {

/// Log of the tour library.
Q_DECLARE_LOGGING_CATEGORY(lcLibrary)

} // namespace ridelog
