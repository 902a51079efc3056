#include "tests/support/Samples.h"

#include <QDir>

namespace ridelog {

QString samplePath(const QString& name)
{
    return haveSamples() ? QDir(QStringLiteral(RIDELOG_SAMPLES)).filePath(name) : QString();
}

bool haveSamples()
{
    const QString folder = QStringLiteral(RIDELOG_SAMPLES);
    return !folder.isEmpty() && QDir(folder).exists();
}

} // namespace ridelog
