#include "ui/FileDrop.h"

#include "ui/ApplicationWindows.h"

#include <QDropEvent>
#include <QMimeData>
#include <QPointer>
#include <QUrl>
#include <QWidget>

namespace ridelog {
namespace {

/// Paths of the files that something dragged here consists of; none if part of it is no file of this machine.
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

} // namespace

FileDrop::FileDrop(ApplicationWindows& windows, QWidget& window)
    : QObject(&window), _windows(windows), _window(window)
{
    window.setAcceptDrops(true);
    window.installEventFilter(this);
}

bool FileDrop::eventFilter(QObject*, QEvent* event)
{
    if (event->type() != QEvent::DragEnter && event->type() != QEvent::Drop)
        return false;
    auto* drop = static_cast<QDropEvent*>(event); // a drag that enters is one as well
    const auto paths = droppedFiles(*drop->mimeData());
    if (paths.isEmpty())
        return false;
    drop->acceptProposedAction();
    // What is opened may take the window's place.
    if (event->type() == QEvent::Drop)
        QMetaObject::invokeMethod(
            &_windows,
            [&windows = _windows, over = QPointer(&_window), paths] { windows.takeFiles(paths, over); },
            Qt::QueuedConnection);
    return true;
}

} // namespace ridelog
