#pragma once

#include <QObject>

QT_BEGIN_NAMESPACE
class QAction;
class QMenu;
QT_END_NAMESPACE

namespace ridelog {

class UndoManager;

/// The two entries of a menu that undo and redo the steps of a document, and name them.
class UndoActions : public QObject {
    Q_OBJECT

public:
    /// Adds the entries to the menu, which owns this; the undo manager has to outlive it.
    UndoActions(QMenu& menu, UndoManager& undo);

Q_SIGNALS:
    /// A step is about to be taken back, or done again.
    void chosen();

private:
    void show();

    UndoManager& _undo;
    QAction* _undoAction;
    QAction* _redoAction;
};

} // namespace ridelog
