#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace ridelog {

/// Writes a file whole or not at all: whatever fails, the file of that name is the old one, or there is none.
/// Links are followed. Answers none when the bytes are on the disk, else what went wrong. Only regular files
/// are replaced.
std::optional<QString> writeWholeFile(const QString& path, const QByteArray& bytes);

} // namespace ridelog
