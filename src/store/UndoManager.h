#pragma once

#include "foundation/Signal.h"

#include <functional>
#include <string>
#include <vector>

namespace cuebright {

/// Two stacks of named actions.
///
/// An action registered while undoing becomes the redo, one registered while redoing the next undo; both keep the name
/// of the action that is being performed. Any other registration empties the redo stack.
class UndoManager final {
public:
    using Action = std::function<void()>;

    [[nodiscard]] bool canUndo() const { return !m_undoStack.empty(); }
    [[nodiscard]] bool canRedo() const { return !m_redoStack.empty(); }
    /// The name of what `undo` or `redo` would perform next; empty when there is nothing.
    [[nodiscard]] std::string undoActionName() const;
    [[nodiscard]] std::string redoActionName() const;

    /// `action` must do nothing once its target is gone.
    void registerUndo(Action action);
    /// Names the action registered last. Without effect while undoing or redoing.
    void setActionName(std::string name);

    /// Performs the latest action; nothing happens without one. The action is used up whatever it does.
    void undo();
    void redo();
    void removeAllActions();

    /// The stacks or a name have changed.
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
