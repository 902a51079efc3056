#pragma once

#include <QByteArrayView>
#include <QString>

#include <functional>
#include <optional>

namespace ridelog {

/// Where bytes go, one piece after another.
using ByteSink = std::function<void(QByteArrayView)>;
using ByteSource = std::function<void(const ByteSink&)>;

/// Writes a file whole or not at all: to a new file in the same folder, forced to the disk, which then takes
/// the old one's place and its permissions. Links are followed; only regular files that may be written are
/// replaced.
///
/// `content` gives the bytes to its sink, the same each time it is called. Answers none when they are on the
/// disk, else what went wrong; the file of that name is then the old one, or there is none. Only when the
/// disk fails after the last step, it may be the new one.
std::optional<QString> writeWholeFile(const QString& path, const ByteSource& content);
std::optional<QString> writeWholeFile(const QString& path, QByteArrayView bytes);

/// Keeps what a file holds under another name in the same folder, whole or not at all; what had that name
/// before goes. The file must not be changed in place afterwards, only replaced: where the file system can do
/// it, both are one file with two names. None, or what went wrong.
std::optional<QString> keepUnderName(const QString& path, const QString& otherPath);

/// Where the bytes go: the path with its links followed, also where no file of that name exists yet.
QString targetOfPath(const QString& path);

} // namespace ridelog
