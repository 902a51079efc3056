#pragma once

#include <QLoggingCategory>

namespace ridelog {

/// Log of the dump decoder.
Q_DECLARE_LOGGING_CATEGORY(lcDecode)

} // namespace ridelog
