#pragma once

#include <QLoggingCategory>

namespace ridelog {

/// Log of the windows.
Q_DECLARE_LOGGING_CATEGORY(lcUi)

} // namespace ridelog
