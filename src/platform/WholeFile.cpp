#include "platform/WholeFile.h"

#include "platform/SystemCall.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace ridelog {
namespace {

/// A name in the folder that nobody else uses: short, for the file's own name may be as long as names can be.
QByteArray temporaryName(const QByteArray& folder)
{
    return folder + "/.ridelog-" + QByteArray::number(QRandomGenerator::system()->generate64(), 36);
}

QString inFolder(const QString& error)
{
    return QCoreApplication::translate("WholeFile", "nothing can be written in its folder: %1").arg(error);
}

using Move = bool (*)(const QByteArray& from, const QByteArray& to);

bool replace(const QByteArray& from, const QByteArray& to)
{
    return ::rename(from.constData(), to.constData()) == 0;
}

/// EEXIST if something has the name.
bool takeFreeName(const QByteArray& from, const QByteArray& to)
{
    if (::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0)
        return true;
    // Not every file system can do it at once. Those that cannot have links, as a rule.
    if (errno != EINVAL && errno != ENOSYS)
        return false;
    if (::link(from.constData(), to.constData()) == 0) {
        ::unlink(from.constData());
        return true;
    }
    if (errno == EEXIST)
        return false;
    struct stat found {};
    if (::lstat(to.constData(), &found) == 0) {
        errno = EEXIST;
        return false;
    }
    return replace(from, to);
}

} // namespace

/// The new file; gone again unless it was put in place.
class WholeFile::NewFile {
public:
    /// A named file has the name `passing`.
    NewFile(const QByteArray& folder, const QByteArray& passing, Kind kind, mode_t permissions)
    {
        if (kind == Kind::unnamed) {
            _descriptor = ::open(folder.constData(), O_TMPFILE | O_WRONLY | O_CLOEXEC, permissions);
            return;
        }
        _descriptor = ::open(passing.constData(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, permissions);
        if (_descriptor >= 0)
            _name = passing;
    }
    ~NewFile()
    {
        if (_descriptor >= 0)
            ::close(_descriptor);
        if (!_name.isEmpty())
            ::unlink(_name.constData());
    }
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    bool isOpen() const { return _descriptor >= 0; }

    /// Gives it the old file's permissions, and its owner and group as far as this user may.
    bool takeAttributesOf(const struct stat& old)
    {
        if (::fchown(_descriptor, old.st_uid, old.st_gid) != 0 &&
            ::fchown(_descriptor, static_cast<uid_t>(-1), old.st_gid) != 0 && errno != EPERM)
            return false;
        return ::fchmod(_descriptor, old.st_mode & 07777) == 0;
    }

    /// Writes all that the content gives and forces it to the disk. None, or what went wrong.
    std::optional<QString> write(const ByteSource& content, const std::function<bool()>& isWanted)
    {
        std::optional<QString> error;
        content([&](QByteArrayView bytes) {
            if (!error && isWanted() && !write(bytes))
                error = systemError();
        });
        if (!error && isWanted() && uninterrupted([&] { return ::fsync(_descriptor); }) != 0)
            error = systemError();
        return error;
    }

    bool giveName(const QByteArray& name)
    {
        if (!_name.isEmpty())
            return true;
        const auto unnamed = "/proc/self/fd/" + QByteArray::number(_descriptor);
        if (::linkat(AT_FDCWD, unnamed.constData(), AT_FDCWD, name.constData(), AT_SYMLINK_FOLLOW) != 0)
            return false;
        _name = name;
        return true;
    }

    /// Answers what the file system says of the new file, if all went well.
    std::optional<struct stat> moveTo(const QByteArray& path, Move move)
    {
        // Interrupted or not, the descriptor is gone, and the bytes were on the disk before.
        const bool closed = ::close(std::exchange(_descriptor, -1)) == 0 || errno == EINTR;
        // Asked now: there are file servers that set a file's time when it is closed.
        struct stat state {};
        if (!closed || ::stat(_name.constData(), &state) != 0 || !move(_name, path))
            return std::nullopt;
        _name.clear();
        return state;
    }

private:
    bool write(QByteArrayView bytes)
    {
        while (!bytes.isEmpty()) {
            const auto written = uninterrupted(
                [&] { return ::write(_descriptor, bytes.data(), static_cast<std::size_t>(bytes.size())); });
            if (written < 0)
                return false;
            bytes = bytes.sliced(written);
        }
        return true;
    }

    QByteArray _name; ///< empty while it has none
    int _descriptor = -1;
};

WholeFile::WholeFile(const QString& path, const QString& passing, mode_t permissions)
    : _permissions(permissions)
{
    const auto target = targetOfPath(path);
    _name = QFile::encodeName(target);
    _folder = QFile::encodeName(QFileInfo(target).path());
    _passing = passing.isEmpty() ? temporaryName(_folder) : QFile::encodeName(passing);
}

WholeFile::~WholeFile()
{
    if (_folderDescriptor >= 0)
        ::close(_folderDescriptor);
}

std::optional<QString> WholeFile::write(ByteSource content, std::function<bool()> isWanted)
{
    // The new file takes the place of the old one, which must not happen to a device or a pipe.
    if (auto reason = whyNoFile(QFile::decodeName(_name)))
        return reason;
    struct stat old {};
    if (::stat(_name.constData(), &old) == 0)
        _old = old;
    if (_old ? ::access(_name.constData(), W_OK) != 0 : errno != ENOENT)
        return systemError();
    // Opened before anything is changed: where a renaming cannot be forced to the disk, none is begun.
    _folderDescriptor = ::open(_folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (_folderDescriptor < 0)
        return inFolder(systemError());
    _content = std::move(content);
    _isWanted = std::move(isWanted);
    const auto error = makeNewFile(Kind::unnamed);
    return _newFile ? error : makeNewFile(Kind::named);
}

std::optional<QString> WholeFile::putInPlaceOf(const QByteArray& name)
{
    return moveTo(name, replace);
}

std::optional<QString> WholeFile::putInFreePlace()
{
    return moveTo(_name, takeFreeName);
}

std::optional<QString> WholeFile::moveTo(const QByteArray& name, Move move)
{
    if (!_newFile->giveName(_passing)) {
        if (auto error = makeNewFile(Kind::named))
            return error;
    }
    const auto state = _newFile->moveTo(name, move);
    if (!state)
        return errno == EEXIST ? QCoreApplication::translate("WholeFile", "it is there already")
                               : systemError();
    _state = *state;
    return std::nullopt;
}

/// There is no new file where files of this kind cannot be made at all.
std::optional<QString> WholeFile::makeNewFile(Kind kind)
{
    _newFile = std::make_unique<NewFile>(_folder, _passing, kind, _old ? 0600 : _permissions);
    if (!_newFile->isOpen()) {
        auto error = inFolder(systemError());
        _newFile.reset();
        return error;
    }
    if (_old && !_newFile->takeAttributesOf(*_old))
        return systemError();
    return _newFile->write(_content, _isWanted);
}

std::optional<QString> WholeFile::forceFolder()
{
    // Some file systems do not know how to force a folder; they say so.
    if (uninterrupted([&] { return ::fsync(_folderDescriptor); }) != 0 && errno != EINVAL)
        return systemError();
    return std::nullopt;
}

std::optional<QString> writeWholeFile(const QString& path, QByteArrayView bytes)
{
    WholeFile file(path);
    if (auto error = file.write([bytes](const ByteSink& sink) { sink(bytes); }))
        return error;
    if (auto error = file.putInPlace())
        return error;
    return file.forceFolder();
}

std::optional<QString> keepUnderName(const QString& path, const QString& otherPath, const QString& passing)
{
    const auto name = QFile::encodeName(path);
    const auto otherName = QFile::encodeName(otherPath);
    const auto link = passing.isEmpty() ? temporaryName(QFile::encodeName(QFileInfo(path).path()))
                                        : QFile::encodeName(passing);
    if (::link(name.constData(), link.constData()) == 0) {
        const bool renamed = ::rename(link.constData(), otherName.constData()) == 0;
        auto error = renamed ? std::nullopt : std::optional(systemError());
        // A file that has both names already is left as it is by renaming.
        ::unlink(link.constData());
        return error;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return file.errorString();
    const auto bytes = file.readAll();
    if (file.error() != QFile::NoError)
        return file.errorString();
    WholeFile copy(path, passing);
    if (auto error = copy.write([&bytes](const ByteSink& sink) { sink(bytes); }))
        return error;
    return copy.putInPlaceOf(otherName);
}

QString targetOfPath(const QString& path)
{
    const QFileInfo info(path);
    if (auto target = info.canonicalFilePath(); !target.isEmpty())
        return target;
    const auto folder = info.dir().canonicalPath();
    return folder.isEmpty() ? info.absoluteFilePath() : QDir(folder).filePath(info.fileName());
}

std::optional<QString> whyNoFile(const QString& path)
{
    // The system would take the part before it for the name.
    if (path.contains(QChar::Null))
        return QCoreApplication::translate("WholeFile", "no file can have this name");
    const QFileInfo info(path);
    if (info.isDir())
        return QCoreApplication::translate("WholeFile", "it is a folder");
    if (info.exists() && !info.isFile())
        return QCoreApplication::translate("WholeFile", "it is not a regular file");
    if (!info.exists() && info.isSymLink())
        return QCoreApplication::translate("WholeFile", "it is a link that leads nowhere");
    return std::nullopt;
}

} // namespace ridelog
