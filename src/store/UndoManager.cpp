#include "store/UndoManager.h"

#include <utility>

namespace cuebright {

std::string UndoManager::undoActionName() const
{
    return m_undoStack.empty() ? std::string() : m_undoStack.back().name;
}

std::string UndoManager::redoActionName() const
{
    return m_redoStack.empty() ? std::string() : m_redoStack.back().name;
}

void UndoManager::registerUndo(Action action)
{
    auto& stack = m_activity == Activity::Undoing ? m_redoStack : m_undoStack;
    stack.push_back({std::move(action), m_performedName});
    if (m_activity == Activity::Idle)
        m_redoStack.clear();
    changed.notify();
}

void UndoManager::setActionName(std::string name)
{
    if (m_activity != Activity::Idle || m_undoStack.empty())
        return;
    m_undoStack.back().name = std::move(name);
    changed.notify();
}

void UndoManager::undo() { perform(m_undoStack, Activity::Undoing); }

void UndoManager::redo() { perform(m_redoStack, Activity::Redoing); }

void UndoManager::perform(std::vector<Entry>& stack, Activity activity)
{
    if (m_activity != Activity::Idle || stack.empty())
        return;
    const auto entry = std::move(stack.back());
    stack.pop_back();
    m_activity = activity;
    m_performedName = entry.name;
    entry.action();
    m_activity = Activity::Idle;
    m_performedName.clear();
    changed.notify();
}

void UndoManager::removeAllActions()
{
    m_undoStack.clear();
    m_redoStack.clear();
    changed.notify();
}

} // namespace cuebright
