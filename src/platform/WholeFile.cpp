#include "platform/WholeFile.h"

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

QString systemError()
{
    return QString::fromLocal8Bit(std::strerror(errno));
}

/// A name in the folder that nobody else uses: short, for the file's own name may be as long as names can be.
QByteArray temporaryName(const QByteArray& folder)
{
    return folder + "/.ridelog-" + QByteArray::number(QRandomGenerator::global()->generate64(), 36);
}

/// Calls again what a signal has interrupted.
template <typename Call>
auto uninterrupted(Call&& call)
{
    auto result = call();
    while (result < 0 && errno == EINTR)
        result = call();
    return result;
}

/// The file that is being written; gone again unless it was put in place.
class NewFile {
public:
    /// Without a name a file leaves nothing behind when the program is killed, but not every file system has
    /// such files.
    enum class Kind { unnamed, named };

    NewFile(QByteArray folder, Kind kind, mode_t permissions) : _folder(std::move(folder))
    {
        if (kind == Kind::unnamed) {
            _descriptor = ::open(_folder.constData(), O_TMPFILE | O_WRONLY | O_CLOEXEC, permissions);
            return;
        }
        const auto name = temporaryName(_folder);
        _descriptor = ::open(name.constData(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, permissions);
        if (_descriptor >= 0)
            _name = name;
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
    std::optional<QString> write(const ByteSource& content)
    {
        std::optional<QString> error;
        content([&](QByteArrayView bytes) {
            if (!error && !write(bytes))
                error = systemError();
        });
        if (!error && uninterrupted([&] { return ::fsync(_descriptor); }) != 0)
            error = systemError();
        return error;
    }

    bool giveName()
    {
        if (!_name.isEmpty())
            return true;
        const auto name = temporaryName(_folder);
        const auto unnamed = "/proc/self/fd/" + QByteArray::number(_descriptor);
        if (::linkat(AT_FDCWD, unnamed.constData(), AT_FDCWD, name.constData(), AT_SYMLINK_FOLLOW) != 0)
            return false;
        _name = name;
        return true;
    }

    bool putInPlaceOf(const QByteArray& path)
    {
        // Interrupted or not, the descriptor is gone, and the bytes were on the disk before.
        const bool closed = ::close(std::exchange(_descriptor, -1)) == 0 || errno == EINTR;
        if (!closed || ::rename(_name.constData(), path.constData()) != 0)
            return false;
        _name.clear();
        return true;
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

    QByteArray _folder;
    QByteArray _name; ///< empty while it has none
    int _descriptor = -1;
};

/// Makes sure that a renaming in the folder survives a power failure.
std::optional<QString> syncFolder(const QString& folder)
{
    const int descriptor = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return systemError();
    // Some file systems do not know how to force a folder; they say so.
    const bool synced = uninterrupted([&] { return ::fsync(descriptor); }) == 0 || errno == EINVAL;
    const auto error = synced ? std::nullopt : std::optional(systemError());
    ::close(descriptor);
    return error;
}

} // namespace

std::optional<QString> writeWholeFile(const QString& path, QByteArrayView bytes)
{
    return writeWholeFile(path, [bytes](const ByteSink& sink) { sink(bytes); });
}

std::optional<QString> writeWholeFile(const QString& path, const ByteSource& content)
{
    // The new file takes the place of the old one, which must not happen to a device, a pipe or a broken
    // link.
    const QFileInfo info(path);
    if (info.exists() ? !info.isFile() : info.isSymLink())
        return info.isDir() ? QStringLiteral("it is a folder") : QStringLiteral("it is not a regular file");

    const auto target = targetOfPath(path);
    const auto name = QFile::encodeName(target);
    const auto folder = QFileInfo(target).path();
    struct stat old {};
    const bool replaces = ::stat(name.constData(), &old) == 0;
    if (replaces ? ::access(name.constData(), W_OK) != 0 : errno != ENOENT)
        return systemError();

    for (const auto kind : {NewFile::Kind::unnamed, NewFile::Kind::named}) {
        NewFile file(QFile::encodeName(folder), kind, replaces ? 0600 : 0666);
        const bool mayTryAgain = kind == NewFile::Kind::unnamed;
        if (!file.isOpen() && mayTryAgain)
            continue;
        if (!file.isOpen() || (replaces && !file.takeAttributesOf(old)))
            return systemError();
        if (const auto error = file.write(content))
            return error;
        if (!file.giveName() && mayTryAgain)
            continue;
        if (!file.putInPlaceOf(name))
            return systemError();
        break;
    }
    return syncFolder(folder);
}

QString targetOfPath(const QString& path)
{
    const QFileInfo info(path);
    if (const auto target = info.canonicalFilePath(); !target.isEmpty())
        return target;
    const auto folder = info.dir().canonicalPath();
    return folder.isEmpty() ? info.absoluteFilePath() : QDir(folder).filePath(info.fileName());
}

std::optional<QString> keepUnderName(const QString& path, const QString& otherPath)
{
    const auto name = QFile::encodeName(path);
    const auto otherName = QFile::encodeName(otherPath);
    const auto link = temporaryName(QFile::encodeName(QFileInfo(path).path()));
    if (::link(name.constData(), link.constData()) == 0) {
        const bool renamed = ::rename(link.constData(), otherName.constData()) == 0;
        const auto error = renamed ? std::nullopt : std::optional(systemError());
        // A file that has both names already is left as it is by renaming.
        ::unlink(link.constData());
        return error;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return file.errorString();
    const auto bytes = file.readAll();
    return file.error() == QFile::NoError ? writeWholeFile(otherPath, bytes) : file.errorString();
}

} // namespace ridelog
