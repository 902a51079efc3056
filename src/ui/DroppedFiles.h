#pragma once

#include <QStringList>

QT_FORWARD_DECLARE_CLASS(QMimeData)

namespace ridelog {

/// Paths of the files that something dragged here consists of; none if part of it is no file of this machine.
QStringList droppedFiles(const QMimeData& dragged);

} // namespace ridelog
