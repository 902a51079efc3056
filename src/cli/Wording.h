#pragma once

#include <QString>

namespace ridelog {

// Texts for people at a terminal.

/// The text without anything that would end its line or move a terminal's cursor.
QString printable(const QString& text);

/// Whether the text has nothing of that.
bool isOneLine(const QString& text);

/// At most `length` characters of the text, the last of them "…" where some are left out.
QString elided(const QString& text, qsizetype length);

/// "1 tour", "2 tours": for what makes its plural with an s.
QString counted(qsizetype count, const QString& what);

} // namespace ridelog
