#pragma once

#include <QString>

#include <optional>

namespace ridelog {

/// Why a raw dump is not to be written to this path: it cannot be, or a document would be lost. None if all
/// is well now.
std::optional<QString> whyNoDumpTarget(const QString& path);

/// Why a file cannot be written or replaced there. None if it can, as far as can be told.
std::optional<QString> whyNotWritable(const QString& path);

} // namespace ridelog
