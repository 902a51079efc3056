#pragma once

#include "platform/WholeFile.h"

#include <QByteArray>
#include <QLockFile>
#include <QString>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <sys/stat.h>

namespace ridelog {

/// Tells two states of a file apart.
struct FileState {
    std::uint64_t device = 0;
    std::uint64_t number = 0;
    std::int64_t size = 0;
    std::int64_t modified = 0; ///< nanoseconds
    FileState() = default;
    explicit FileState(const struct stat& found);
    bool operator==(const FileState&) const = default;
};

/// The file of an open document. While the document is open other programs of this kind are told so by a lock
/// file beside it; the file itself is only read, and replaced whole.
///
/// What goes wrong is answered in words for people, none for nothing.
class DocumentFile {
public:
    /// Nothing is read or locked yet. Links in the path are followed.
    explicit DocumentFile(const QString& path);

    /// The path as it was given.
    const QString& path() const { return _path; }
    bool isSameFile(const QString& path) const;

    /// Keeps others from writing, until this is destroyed. Answers who has kept the file before. Where a lock
    /// cannot be made at all, as in a folder that is not to be written, the file counts as not kept by
    /// others.
    std::optional<QString> lock();

    /// Takes over what the file holds, or answers why that is none of its kind.
    using Load = std::function<std::optional<QString>(const QByteArray& bytes)>;
    /// Reads the whole file. Only when `load` took it over, the file is known as it is: what was not is not
    /// overwritten unasked. Larger files than `largest` bytes are refused.
    std::optional<QString> read(const Load& load, qint64 largest);

    /// Whether the file is another one than it was when it was last read or written here, or has come into
    /// being since. One that has gone counts as unchanged: writing loses nothing.
    bool wasChangedByOthers() const;

    /// What was there may be overwritten, whoever wrote it.
    void acceptChangesOfOthers() { _known = currentState(); }

    /// The file as it was when it was last read or written here; none: there was none.
    const std::optional<FileState>& known() const { return _known; }
    /// The file is known from an earlier run of the program. Devices may have got other numbers since.
    void setKnown(const std::optional<FileState>& known);

    /// Writes the file (see WholeFile). The first time, what was there is kept beside it under its name with
    /// a "~" behind it, or with more where such a file is no older document or is open as one. Refused when
    /// the file is locked or was changed by others.
    std::optional<QString> write(const ByteSource& content);

private:
    std::optional<FileState> currentState() const;
    std::optional<QString> changeOfOthers() const;
    std::optional<QString> keepBackup() const;
    QString passingPath(const QString& suffix) const;

    QString _path;
    QString _target; ///< links followed
    std::unique_ptr<QLockFile> _lock;
    std::optional<FileState> _known; ///< none: there is no file
    bool _backedUp = false;
};

} // namespace ridelog
