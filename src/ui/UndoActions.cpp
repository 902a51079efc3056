#include "ui/UndoActions.h"

#include "platform/UndoManager.h"

#include <QMenu>

#include <functional>

namespace ridelog {

UndoActions::UndoActions(QMenu& menu, UndoManager& undo) : QObject(&menu), _undo(undo)
{
    const auto add = [&](const QKeySequence& keys, bool (UndoManager::*step)()) {
        auto* action = menu.addAction(QString());
        action->setShortcut(keys);
        connect(action, &QAction::triggered, this, [this, step] {
            Q_EMIT chosen();
            std::invoke(step, _undo);
        });
        return action;
    };
    _undoAction = add(QKeySequence::Undo, &UndoManager::undo);
    _redoAction = add(Qt::CTRL | Qt::SHIFT | Qt::Key_Z, &UndoManager::redo);
    connect(&_undo, &UndoManager::changed, this, &UndoActions::show);
    show();
}

void UndoActions::show()
{
    const auto undone = _undo.undoActionName();
    const auto redone = _undo.redoActionName();
    _undoAction->setText(undone.isEmpty() ? tr("&Undo") : tr("&Undo %1").arg(undone));
    _undoAction->setEnabled(_undo.canUndo());
    _redoAction->setText(redone.isEmpty() ? tr("&Redo") : tr("&Redo %1").arg(redone));
    _redoAction->setEnabled(_undo.canRedo());
}

} // namespace ridelog
