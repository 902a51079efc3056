#include "platform/DocumentFile.h"

#include "platform/Languages.h"
#include "platform/TypedStreamReader.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QLocale>

#include <sys/stat.h>

namespace ridelog {
namespace {

/// Nobody is busy making a lock for longer.
constexpr int lockMakingTime = 10'000; // milliseconds

QString hiddenBeside(const QString& target, const QString& suffix)
{
    const QFileInfo info(target);
    return info.path() + QStringLiteral("/.") + info.fileName() + suffix;
}

// Names in passing: of the new file, and of the backup. A new file that needs a name from the start has its
// own while the backup is made.
const QString savingSuffix = QStringLiteral(".saving");
const QString backupSuffix = QStringLiteral(".backup");

QString lockPath(const QString& target)
{
    return hiddenBeside(target, QStringLiteral(".lock"));
}

bool isDocument(const QString& path)
{
    constexpr qint64 enoughToTell = 64;
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && TypedStreamReader::isTypedStream(file.read(enoughToTell));
}

/// Whether there is something of this name that is no older document, or that somebody has open as one.
bool belongsToOthers(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists() && !info.isSymLink())
        return false;
    return info.isSymLink() || !info.isFile() || QFileInfo::exists(lockPath(path)) || !isDocument(path);
}

} // namespace

DocumentFile::DocumentFile(const QString& path) : _path(path), _target(targetOfPath(path)) {}

bool DocumentFile::isSameFile(const QString& path) const
{
    return targetOfPath(path) == _target;
}

std::optional<QString> DocumentFile::lock()
{
    if (_lock)
        return std::nullopt;
    if (auto reason = whyNoFile(_target))
        return reason;
    auto lock = std::make_unique<QLockFile>(lockPath(_target));
    // The owner may have the document open for weeks; only one that no longer runs has given it up.
    lock->setStaleLockTime(0);
    qint64 process = 0;
    QString host;
    QString program;
    bool locked = lock->tryLock(0);
    const bool ownerIsKnown = locked || lock->getLockInfo(&process, &host, &program);
    if (!ownerIsKnown) {
        // One that was killed, or lost its power, before it had said who it is.
        lock->setStaleLockTime(lockMakingTime);
        locked = lock->tryLock(0);
    }
    if (locked) {
        _lock = std::move(lock);
        // What an owner before us left that was killed while it saved.
        for (const auto& suffix : {savingSuffix, backupSuffix})
            QFile::remove(passingPath(suffix));
        return std::nullopt;
    }
    if (lock->error() != QLockFile::LockFailedError)
        return std::nullopt;
    if (!ownerIsKnown)
        return QCoreApplication::translate("DocumentFile", "another program has it open");
    return QCoreApplication::translate("DocumentFile", "%1 has it open (process %2 on %3)")
        .arg(program, QString::number(process), host);
}

std::optional<QString> DocumentFile::read(const Load& load, qint64 largest)
{
    // A pipe would keep us waiting.
    if (auto reason = whyNoFile(_target))
        return reason;
    QFile file(_target);
    if (!file.open(QIODevice::ReadOnly))
        return file.errorString();
    // Before the bytes: what is written after this is noticed as a change.
    struct stat found {};
    if (::fstat(file.handle(), &found) != 0)
        return qt_error_string();
    if (file.size() > largest)
        return QCoreApplication::translate("DocumentFile", "it is too large: %1 bytes, at most %2 are read")
            .arg(messageLocale().toString(file.size()), messageLocale().toString(largest));
    const auto bytes = file.readAll();
    if (file.error() != QFile::NoError)
        return file.errorString();
    if (auto error = load(bytes))
        return error;
    _known = FileState(found);
    return std::nullopt;
}

bool DocumentFile::wasChangedByOthers() const
{
    const auto current = currentState();
    return current && current != _known;
}

void DocumentFile::setKnown(const std::optional<FileState>& known)
{
    _known = known;
    const auto current = currentState();
    if (_known && current)
        _known->device = current->device;
}

std::optional<QString> DocumentFile::write(const ByteSource& content)
{
    if (auto owner = lock())
        return owner;
    if (auto change = changeOfOthers())
        return change;
    WholeFile file(_target, passingPath(savingSuffix));
    if (auto error = file.write(content))
        return error;
    if (auto error = keepBackup())
        return QCoreApplication::translate("DocumentFile", "no backup can be kept: %1").arg(*error);
    // Once more: forcing bytes to a disk takes its time.
    if (auto change = changeOfOthers())
        return change;
    if (auto error = file.putInPlace())
        return error;
    _known = FileState(file.state());
    _backedUp = true;
    return file.forceFolder();
}

/// What the first write of this session will replace.
std::optional<QString> DocumentFile::keepBackup() const
{
    if (_backedUp || !currentState())
        return std::nullopt;
    auto backup = _target + u'~';
    while (belongsToOthers(backup))
        backup += u'~';
    return keepUnderName(_target, backup, passingPath(backupSuffix));
}

/// A name of a file in passing; none without the lock, as it could be somebody else's as well.
QString DocumentFile::passingPath(const QString& suffix) const
{
    return _lock ? hiddenBeside(_target, suffix) : QString();
}

std::optional<QString> DocumentFile::changeOfOthers() const
{
    return wasChangedByOthers() ? std::optional(QCoreApplication::translate(
                                      "DocumentFile", "another program has changed it meanwhile"))
                                : std::nullopt;
}

FileState::FileState(const struct stat& found)
    : device(found.st_dev),
      number(found.st_ino),
      size(found.st_size),
      modified(found.st_mtim.tv_sec * 1'000'000'000 + found.st_mtim.tv_nsec)
{
}

std::optional<FileState> DocumentFile::currentState() const
{
    struct stat found {};
    if (::stat(QFile::encodeName(_target).constData(), &found) != 0)
        return std::nullopt;
    return FileState(found);
}

} // namespace ridelog
