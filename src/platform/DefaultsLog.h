#pragma once

#include <QLoggingCategory>

namespace ridelog {

/// Log of the defaults store.
Q_DECLARE_LOGGING_CATEGORY(lcDefaults)

} // namespace ridelog
