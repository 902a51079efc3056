#pragma once

#include <QString>

namespace ridelog {

/// What is left of a text as part of a file's name: what some file system does not take, what ends a line,
/// turns its direction or cannot be seen becomes `instead`, once for each run of it; at either end it goes,
/// as do full stops, which hide files or are lost. Of a long text the beginning. May be empty.
QString safeFileName(const QString& text, QChar instead = u' ');

} // namespace ridelog
