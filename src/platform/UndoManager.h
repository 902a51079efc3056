#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <vector>

namespace ridelog {

/// Remembers how to take back what was done to a document, step by step, and tells whether the document is as
/// it was saved.
///
/// What is registered while control is away from the event loop, by one click or one command, belongs
/// together: it forms one group, is undone as one step, in reverse order, and carries the action name set
/// last. The group ends when control returns to the event loop, before an undo or redo, and with closeGroup;
/// where no event loop runs, closeGroup is the only thing that parts one command from the next. beginGroup
/// and endGroup keep a group together over several events.
///
/// Actions must not throw, and must not destroy the manager. All calls come from the thread it lives in.
class UndoManager : public QObject {
    Q_OBJECT

public:
    using Action = std::function<void()>;

    explicit UndoManager(QObject* parent = nullptr) : QObject(parent) {}

    // Registering. A new registration gives up the steps that could be redone.

    /// Registers the call that takes back what is being done. Whatever that call registers while it is undone
    /// becomes the redo, and the other way round; so a setter registers itself with the value that it
    /// replaces.
    void registerUndo(Action inverse);
    /// Registers both directions and names the group. What the two register while they run is ignored.
    void registerUndo(const QString& actionName, Action undo, Action redo);
    /// Names the group that is open. Ignored without one, so that an action that registered nothing does not
    /// rename an older step, and during undo and redo: a step keeps its name.
    void setActionName(const QString& name);

    /// Begins a group that stays open until the endGroup for it. Groups nest: all of it is one step.
    void beginGroup();
    /// Ends the group begun last; ignored without one.
    void endGroup();
    /// Ends what the current event registered; ignored between beginGroup and endGroup.
    void closeGroup();

    /// From here on registrations are ignored, until enableUndoRegistration was called as often.
    void disableUndoRegistration() { ++_disabled; }
    void enableUndoRegistration();
    bool isUndoRegistrationEnabled() const { return _disabled == 0; }

    // Undoing

    /// Whether there is a step, the open group included.
    bool canUndo() const { return !_group.actions.empty() || !_undoSteps.empty(); }
    bool canRedo() const { return !_redoSteps.empty(); }
    /// Name of the step; empty without a name or a step.
    QString undoActionName() const;
    QString redoActionName() const;

    /// Takes back the last step. False, and nothing is done, without one, between beginGroup and endGroup,
    /// and while another undo or redo runs. A step that registers nothing meanwhile cannot be redone; then
    /// the steps that could be redone after it are given up too.
    bool undo();
    /// Does the step again that was taken back last; the mirror of undo.
    bool redo();

    /// Forgets all steps. Whether the document is clean stays as it was.
    void removeAllActions();

    // The saved state

    /// The document was saved as it is now. Ends the open group, so that undo comes back to this state; saved
    /// between beginGroup and endGroup, a state has no way back.
    void setClean();
    /// Whether the document is as it was at the last setClean, or at the beginning: nothing was registered
    /// since, or all of it was taken back. Once new registrations have cut off the way back, only setClean
    /// makes it true again.
    bool isClean() const { return _state == _cleanState; }
    /// The document is not as it was saved, and no step leads back to where it was: only setClean makes it
    /// clean again.
    void setUnclean();

    /// The state of the document: a number that no other state of its life has.
    using State = quint64;
    State state() const { return _state; }

Q_SIGNALS:
    /// Something was registered, which may come before it is done, or a step was run.
    void stateChanged();
    /// One of canUndo, canRedo and the two names is another than before.
    void changed();
    void cleanChanged(bool clean);

private:
    struct Registration {
        Action undo;
        Action redo; ///< none: the redo is what `undo` registers
    };
    struct Step {
        QString name;
        std::vector<Registration> actions;
        State target = 0; ///< the state that running the step leads to
    };
    /// What menus show of the manager.
    struct Shown {
        bool canUndo = false;
        bool canRedo = false;
        QString undoName;
        QString redoName;
        bool operator==(const Shown&) const = default;
    };

    void add(Registration registration);
    /// Runs the last step of `from`; what it registers becomes a step of `to`.
    bool run(std::vector<Step>& from, std::vector<Step>& to);
    /// Emits what changed since the last call.
    void tell();

    std::vector<Step> _undoSteps;
    std::vector<Step> _redoSteps;
    Step _group; ///< open group; while a step runs, what it registers
    int _depth = 0;
    int _disabled = 0;
    bool _running = false;
    State _state = 0;
    State _lastState = 0; ///< highest number given to a state
    State _cleanState = 0;
    Shown _told;
    State _toldState = 0;
    bool _toldClean = true;
};

/// Keeps what is registered during its life together in one group.
class UndoGroup {
public:
    explicit UndoGroup(UndoManager& manager) : _manager(manager) { _manager.beginGroup(); }
    ~UndoGroup() { _manager.endGroup(); }
    UndoGroup(const UndoGroup&) = delete;
    UndoGroup& operator=(const UndoGroup&) = delete;

private:
    UndoManager& _manager;
};

} // namespace ridelog
