#include "platform/DocumentFile.h"

#include <QFile>
#include <QFileInfo>
#include <QLocale>

#include <sys/stat.h>

namespace ridelog {
namespace {

QString lockPath(const QString& target)
{
    const QFileInfo info(target);
    return info.path() + QStringLiteral("/.") + info.fileName() + QStringLiteral(".lock");
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
    auto lock = std::make_unique<QLockFile>(lockPath(_target));
    // The owner may have the document open for weeks; only one that no longer runs has given it up.
    lock->setStaleLockTime(0);
    if (lock->tryLock(0)) {
        _lock = std::move(lock);
        return std::nullopt;
    }
    if (lock->error() != QLockFile::LockFailedError)
        return std::nullopt;
    qint64 process = 0;
    QString host;
    QString program;
    if (!lock->getLockInfo(&process, &host, &program))
        return QStringLiteral("another program has it open");
    return QStringLiteral("%1 has it open (process %2 on %3)").arg(program).arg(process).arg(host);
}

std::optional<QString> DocumentFile::read(QByteArray& bytes, qint64 largest)
{
    const QFileInfo info(_target);
    if (info.exists() && !info.isFile())
        return info.isDir() ? QStringLiteral("it is a folder") : QStringLiteral("it is not a regular file");
    QFile file(_target);
    if (!file.open(QIODevice::ReadOnly))
        return file.errorString();
    // Before the bytes: what is written after this is noticed as a change.
    _known = currentState();
    if (file.size() > largest)
        return QStringLiteral("it is too large: %1 bytes, at most %2 are read")
            .arg(QLocale::c().toString(file.size()), QLocale::c().toString(largest));
    bytes = file.readAll();
    if (file.error() != QFile::NoError)
        return file.errorString();
    return std::nullopt;
}

bool DocumentFile::wasChangedByOthers() const
{
    const auto current = currentState();
    return current && current != _known;
}

std::optional<QString> DocumentFile::write(const ByteSource& content)
{
    if (const auto owner = lock())
        return owner;
    if (wasChangedByOthers())
        return QStringLiteral("another program has changed it meanwhile");
    if (!_backedUp && _known) {
        if (const auto error = keepUnderName(_target, _target + u'~'))
            return QStringLiteral("no backup can be kept: ") + *error;
    }
    const auto error = writeWholeFile(_target, content);
    _known = currentState();
    _backedUp = _backedUp || !error;
    return error;
}

std::optional<DocumentFile::State> DocumentFile::currentState() const
{
    struct stat found {};
    if (::stat(QFile::encodeName(_target).constData(), &found) != 0)
        return std::nullopt;
    return State{.device = found.st_dev,
                 .number = found.st_ino,
                 .size = found.st_size,
                 .modified = found.st_mtim.tv_sec * 1'000'000'000 + found.st_mtim.tv_nsec};
}

} // namespace ridelog
