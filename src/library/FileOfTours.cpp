#include "library/FileOfTours.h"

#include "decode/OdoData.h"
#include "library/MyDocument.h"

#include <QFileInfo>

namespace ridelog {

bool holdsTours(const QString& path)
{
    return QFileInfo(path).isFile() &&
           (MyDocument::isDocumentFile(path) || OdoData::initWithFile(path).refusal().isEmpty());
}

} // namespace ridelog
