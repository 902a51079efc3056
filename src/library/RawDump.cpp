#include "library/RawDump.h"

#include "library/LibraryLog.h"
#include "platform/WholeFile.h"

#include <QDir>

namespace ridelog {
namespace {

KeptDump keep(const QString& name, const QByteArray& dump)
{
    const auto path = QDir::home().filePath(name);
    qCDebug(lcLibrary, "Write raw data to: %s", qUtf8Printable(path));
    const auto error = writeWholeFile(path, dump);
    if (error)
        qCWarning(lcLibrary, "Could not write raw data to: %s: %s", qUtf8Printable(path),
                  qUtf8Printable(*error));
    return {path, error.value_or(QString())};
}

} // namespace

KeptDump keepFinishedDump(const QByteArray& dump)
{
    return keep(QStringLiteral("odoData.odo"), dump);
}

std::optional<KeptDump> keepStoppedDump(const QByteArray& dump)
{
    if (dump.isEmpty())
        return std::nullopt;
    return keep(QStringLiteral("odoData.odo.tmp"), dump);
}

} // namespace ridelog
