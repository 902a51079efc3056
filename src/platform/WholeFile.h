#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <sys/stat.h>

namespace ridelog {

/// Where bytes go, one piece after another.
using ByteSink = std::function<void(QByteArrayView)>;
using ByteSource = std::function<void(const ByteSink&)>;

/// A file that is written whole or not at all: to a new file in the same folder, forced to the disk, which
/// then takes the old one's place, with its permissions and as far as this user may with its owner. Links are
/// followed; only regular files that may be written are replaced.
///
/// Each step answers none, or what went wrong. A new file that did not get its place goes with this.
class WholeFile {
public:
    /// For the moment before it takes its place the new file has the name `passing`, which nobody else may
    /// use: what a killed program leaves can be found by it. Empty stands for a name of no other file. A file
    /// that comes into being has these permissions, less what the user's mask takes away.
    explicit WholeFile(const QString& path, const QString& passing = QString(), mode_t permissions = 0666);
    ~WholeFile();
    WholeFile(const WholeFile&) = delete;
    WholeFile& operator=(const WholeFile&) = delete;

    /// Makes the new file: its bytes are on the disk then, and the old file is as it was. `content` gives
    /// them to its sink, the same each time it is called, which may be again when the file is put in place.
    /// Once `isWanted` says no, nothing more is written or forced to the disk: the new file is not to be put
    /// in place then.
    std::optional<QString> write(
        ByteSource content, std::function<bool()> isWanted = [] { return true; });
    /// The new file takes the old one's place, or that of whatever has another name in the same folder.
    std::optional<QString> putInPlace() { return putInPlaceOf(_name); }
    std::optional<QString> putInPlaceOf(const QByteArray& name);
    /// The new file takes a place that is free. Refused if anything has the name by now, however late it
    /// came.
    std::optional<QString> putInFreePlace();
    /// What the file system says of the file that was put in place, whoever has replaced it since.
    const struct stat& state() const { return _state; }
    /// Makes sure that what took place in the folder survives a power failure.
    std::optional<QString> forceFolder();

private:
    class NewFile;
    /// Without a name a file leaves nothing behind when the program is killed, but not every file system has
    /// such files.
    enum class Kind { unnamed, named };
    std::optional<QString> makeNewFile(Kind kind);
    std::optional<QString> moveTo(const QByteArray& name, bool (*move)(const QByteArray&, const QByteArray&));

    QByteArray _name;
    QByteArray _folder;
    QByteArray _passing;
    mode_t _permissions;
    int _folderDescriptor = -1;
    ByteSource _content;
    std::function<bool()> _isWanted;
    std::optional<struct stat> _old;
    struct stat _state {};
    std::unique_ptr<NewFile> _newFile;
};

/// All steps of a WholeFile. After an error the file of that name is the old one, or there is none; only when
/// the disk fails after the last step, it may be the new one.
std::optional<QString> writeWholeFile(const QString& path, QByteArrayView bytes);

/// Keeps what a file holds under another name in the same folder, whole or not at all; what had that name
/// before goes. The file must not be changed in place afterwards, only replaced: where the file system can do
/// it, both are one file with two names. None, or what went wrong. For `passing` see WholeFile.
std::optional<QString> keepUnderName(const QString& path, const QString& otherPath,
                                     const QString& passing = QString());

/// Where the bytes go: the path with its links followed, also where no file of that name exists yet.
QString targetOfPath(const QString& path);

/// Why the bytes of what has this path cannot be read or replaced as a file's: it is a folder, a pipe, a link
/// that leads nowhere. None for a regular file, and where there is nothing.
std::optional<QString> whyNoFile(const QString& path);

} // namespace ridelog
