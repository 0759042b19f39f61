#pragma once

#include "foundation/Signal.h"

#include <functional>
#include <string>
#include <vector>

namespace cuebright {

/// An undo stack and a redo stack of named actions.
///
/// An action registered while undoing goes to the redo stack, one registered while redoing to the undo stack; both keep
/// the name of the action being performed. Any other registration clears the redo stack.
class UndoManager final {
public:
    using Action = std::function<void()>;

    [[nodiscard]] bool canUndo() const { return !m_undoStack.empty(); }
    [[nodiscard]] bool canRedo() const { return !m_redoStack.empty(); }
    /// The name of the action that `undo` or `redo` would perform; empty if there is none.
    [[nodiscard]] std::string undoActionName() const;
    [[nodiscard]] std::string redoActionName() const;

    /// Remove the actions before anything that they refer to is destroyed.
    void registerUndo(Action action);
    /// Names the action registered last. Does nothing while undoing or redoing.
    void setActionName(std::string name);

    /// Performs and removes the latest action, if there is one, whatever it does.
    void undo();
    void redo();
    void removeAllActions();

    /// Emitted after a stack or a name has changed.
    Signal<> changed;

private:
    enum class Activity { Idle, Undoing, Redoing };
    struct Entry {
        Action action;
        std::string name;
    };

    void perform(std::vector<Entry>& stack, Activity activity);

    std::vector<Entry> m_undoStack;
    std::vector<Entry> m_redoStack;
    Activity m_activity = Activity::Idle;
    std::string m_performedName;
};

} // namespace cuebright
