#include "cli/DumpTarget.h"

#include "library/MyDocument.h"
#include "platform/WholeFile.h"

#include <QFileInfo>

namespace ridelog {

std::optional<QString> whyNotWritable(const QString& path)
{
    if (auto reason = whyNoFile(path))
        return reason;
    const QFileInfo file(targetOfPath(path));
    const QFileInfo folder(file.path());
    if (!folder.isDir())
        return QStringLiteral("there is no folder of this name");
    if (!folder.isWritable())
        return QStringLiteral("its folder is not to be written");
    if (file.exists() && !file.isWritable())
        return QStringLiteral("it is not to be written");
    return std::nullopt;
}

std::optional<QString> whyNoDumpTarget(const QString& path)
{
    if (MyDocument::isDocumentFile(path))
        return QStringLiteral("a document, which a raw dump would replace");
    return whyNotWritable(path);
}

} // namespace ridelog
