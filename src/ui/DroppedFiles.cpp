#include "ui/DroppedFiles.h"

#include <QMimeData>
#include <QUrl>

namespace ridelog {

QStringList droppedFiles(const QMimeData& dragged)
{
    QStringList paths;
    const auto urls = dragged.urls();
    for (const auto& url : urls) {
        if (!url.isLocalFile())
            return {};
        paths << url.toLocalFile();
    }
    return paths;
}

} // namespace ridelog
