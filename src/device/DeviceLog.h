#pragma once

#include <QLoggingCategory>

namespace ridelog {

/// Log of the serial ports and of the transfer from the device.
Q_DECLARE_LOGGING_CATEGORY(lcDevice)

} // namespace ridelog
