#include "platform/UndoManager.h"

#include <utility>

namespace ridelog {

void UndoManager::registerUndo(Action inverse)
{
    add({std::move(inverse), {}});
}

void UndoManager::registerUndo(const QString& actionName, Action undo, Action redo)
{
    add({std::move(undo), std::move(redo)});
    setActionName(actionName);
}

void UndoManager::add(Registration registration)
{
    if (_disabled > 0)
        return;
    if (!_running) {
        if (_group.actions.empty()) {
            _redoSteps.clear();
            _group.target = _state;
            // Comes back here when the event that registers is through, whichever it was.
            QMetaObject::invokeMethod(this, &UndoManager::closeGroup, Qt::QueuedConnection);
        }
        _state = ++_lastState;
    }
    _group.actions.push_back(std::move(registration));
    tell();
}

void UndoManager::setActionName(const QString& name)
{
    const bool open = _depth > 0 || !_group.actions.empty();
    if (_disabled > 0 || _running || !open)
        return;
    _group.name = name;
    tell();
}

void UndoManager::beginGroup()
{
    ++_depth;
}

void UndoManager::endGroup()
{
    if (_depth == 0)
        return;
    --_depth;
    if (_depth == 0 && !_running) {
        // A name given to a group that stayed empty must not wait for the next one.
        if (_group.actions.empty())
            _group = {};
        else
            QMetaObject::invokeMethod(this, &UndoManager::closeGroup, Qt::QueuedConnection);
    }
}

void UndoManager::closeGroup()
{
    if (_depth > 0 || _running || _group.actions.empty())
        return;
    _undoSteps.push_back(std::exchange(_group, {}));
}

void UndoManager::enableUndoRegistration()
{
    if (_disabled > 0)
        --_disabled;
}

QString UndoManager::undoActionName() const
{
    if (!_group.actions.empty())
        return _group.name;
    return _undoSteps.empty() ? QString() : _undoSteps.back().name;
}

QString UndoManager::redoActionName() const
{
    return _redoSteps.empty() ? QString() : _redoSteps.back().name;
}

bool UndoManager::undo()
{
    closeGroup();
    return run(_undoSteps, _redoSteps);
}

bool UndoManager::redo()
{
    closeGroup();
    return run(_redoSteps, _undoSteps);
}

bool UndoManager::run(std::vector<Step>& from, std::vector<Step>& to)
{
    if (_depth > 0 || _running || from.empty())
        return false;
    const auto step = std::move(from.back());
    from.pop_back();

    _running = true;
    for (auto action = step.actions.rbegin(); action != step.actions.rend(); ++action) {
        if (action->redo) {
            disableUndoRegistration();
            action->undo();
            enableUndoRegistration();
            add({action->redo, action->undo});
        } else {
            action->undo();
        }
    }
    _running = false;

    auto inverse = std::exchange(_group, {});
    if (inverse.actions.empty()) {
        to.clear();
    } else {
        inverse.name = step.name;
        inverse.target = _state;
        to.push_back(std::move(inverse));
    }
    _state = step.target;
    tell();
    return true;
}

void UndoManager::removeAllActions()
{
    _undoSteps.clear();
    _redoSteps.clear();
    _group = {};
    tell();
}

void UndoManager::setClean()
{
    closeGroup();
    _cleanState = _state;
    tell();
}

void UndoManager::setUnclean()
{
    closeGroup();
    _state = ++_lastState;
    tell();
}

void UndoManager::tell()
{
    if (_running)
        return;
    if (std::exchange(_toldState, _state) != _state)
        Q_EMIT stateChanged();
    if (isClean() != _toldClean) {
        _toldClean = isClean();
        Q_EMIT cleanChanged(_toldClean);
    }
    Shown shown{canUndo(), canRedo(), undoActionName(), redoActionName()};
    if (shown != _told) {
        _told = std::move(shown);
        Q_EMIT changed();
    }
}

} // namespace ridelog
