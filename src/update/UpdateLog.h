#pragma once

#include <QLoggingCategory>

namespace ridelog {

/// Log of the update check.
Q_DECLARE_LOGGING_CATEGORY(lcUpdate)

} // namespace ridelog
