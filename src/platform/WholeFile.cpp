#include "platform/WholeFile.h"

#include <QFileInfo>
#include <QSaveFile>

namespace ridelog {

std::optional<QString> writeWholeFile(const QString& path, const QByteArray& bytes)
{
    // The new file takes the place of the old one, which must not happen to a device, a pipe or a broken
    // link.
    const QFileInfo info(path);
    if (info.exists() ? !info.isFile() : info.isSymLink())
        return info.isDir() ? QStringLiteral("it is a folder") : QStringLiteral("it is not a regular file");
    QSaveFile file(path);
    // Flushed before it is committed: committing forgets why a write failed.
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush() ||
        !file.commit())
        return file.errorString();
    return std::nullopt;
}

} // namespace ridelog
