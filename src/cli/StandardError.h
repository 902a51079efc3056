#pragma once

#include <QByteArray>

namespace ridelog {

/// Writes to standard error what nobody has to read: left out where it would have to wait, as for a terminal
/// that has been halted.
void tellIfRead(const QByteArray& text);

} // namespace ridelog
