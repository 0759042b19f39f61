#include "ui/panel/KeyMonitor.h"

#include "foundation/NotificationCenter.h"
#include "store/CardStore.h"
#include "store/UndoManager.h"
#include "ui/base/ModalSheets.h"
#include "ui/base/Notifications.h"
#include "ui/base/UiContext.h"
#include "ui/editor/MarkdownEditor.h"
#include "ui/panel/NotesPanel.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenuBar>
#include <QWindow>

#include <cassert>
#include <utility>

namespace cuebright {

KeyMonitor::KeyMonitor(const UiContext& context, NotesPanel& panel, std::function<bool()> isPanelVisible)
    : m_context(context)
    , m_panel(panel)
    , m_isPanelVisible(std::move(isPanelVisible))
{
    assert(panel.windowHandle());
    panel.windowHandle()->installEventFilter(this);
}

/// Qt sends each key press to the window twice: as a ShortcutOverride, which keeps the menus out if it is accepted,
/// then as a KeyPress.
bool KeyMonitor::eventFilter(QObject*, QEvent* event)
{
    const bool isOverride = event->type() == QEvent::ShortcutOverride;
    if ((!isOverride && event->type() != QEvent::KeyPress) || isKeyboardElsewhere())
        return false;
    const auto action = panelKeyAction(*static_cast<QKeyEvent*>(event), state());
    if (!action)
        return false;
    event->accept();
    if (!isOverride)
        perform(*action);
    return true;
}

bool KeyMonitor::isKeyboardElsewhere() const
{
    return QApplication::activePopupWidget() || isWaitingForAnswer(m_panel)
        || qobject_cast<QMenuBar*>(QApplication::focusWidget());
}

PanelState KeyMonitor::state() const
{
    if (!m_isPanelVisible())
        return PanelState::Hiding;
    return m_context.store.isEditing() ? PanelState::Editing : PanelState::Reading;
}

void KeyMonitor::perform(const PanelKeyAction& action)
{
    auto& store = m_context.store;
    const bool actsOnCards = action.command != PanelCommand::Swallow && action.command != PanelCommand::TogglePanel;
    if (actsOnCards && store.isEditing())
        MarkdownEditor::commitComposition(); // the key may end the edit
    switch (action.command) {
    case PanelCommand::Swallow:
        return;
    case PanelCommand::TogglePanel:
        return m_context.notifications.post(kTogglePanelNotification);
    case PanelCommand::AskToDeleteCard:
        if (store.cardCount() >= 2)
            m_context.notifications.post(kDeleteCardNotification);
        return;
    case PanelCommand::Undo:
        return m_panel.undoManager()->undo();
    case PanelCommand::Redo:
        return m_panel.undoManager()->redo();
    case PanelCommand::BeginEditing:
        m_panel.activate();
        return store.beginEditing();
    case PanelCommand::SaveEdit:
        return store.saveEdit();
    case PanelCommand::CancelEdit:
        return store.cancelEdit();
    case PanelCommand::ToggleOverwrite:
        return m_context.notifications.post(kToggleOverwriteNotification);
    case PanelCommand::PrevCard:
        return store.prevCard();
    case PanelCommand::NextCard:
        return store.nextCard();
    case PanelCommand::SwitchToDeck:
        return store.switchToDeck(action.deckIndex);
    case PanelCommand::ToggleWordCount:
        return store.toggleWordCount();
    }
}

} // namespace cuebright
