#include "panel/NotesPanel.h"

#include "foundation/NotificationCenter.h"
#include "panel/MarkdownEditor.h"
#include "store/CardStore.h"
#include "store/UndoManager.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWindow>

namespace cuebright {

NotesPanel::NotesPanel(const PanelContext& context)
    : QWidget(nullptr, Qt::Window)
    , m_context(context)
    , m_undoManager(std::make_shared<UndoManager>())
{
    qApp->installEventFilter(this);
}

NotesPanel::~NotesPanel() = default;

/// A key reaches the window first as an offer to override shortcuts, then as a press. Taking the offer keeps the menus
/// out; the press acts. The widgets inside see neither.
bool NotesPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress && watched == windowHandle() && m_context.store.isEditing())
        MarkdownEditor::commitComposition(); // the click may end the edit
    const bool isOffer = event->type() == QEvent::ShortcutOverride;
    if ((!isOffer && event->type() != QEvent::KeyPress) || watched != windowHandle())
        return false;
    if (QApplication::activePopupWidget() || QApplication::activeModalWidget())
        return false;
    const auto action = actionFor(*static_cast<QKeyEvent*>(event));
    if (!action)
        return false;
    event->accept();
    if (!isOffer)
        perform(*action);
    return true;
}

std::optional<PanelKeyAction> NotesPanel::actionFor(const QKeyEvent& event) const
{
    const auto stroke = KeyStroke::of(event);
    const bool isEditing = m_context.store.isEditing();
    const auto action = panelKeyAction(stroke, isEditing);
    return action ? action : arrowKeyAction(stroke, isEditing);
}

void NotesPanel::perform(const PanelKeyAction& action)
{
    auto& store = m_context.store;
    if (store.isEditing())
        MarkdownEditor::commitComposition(); // the key may end the edit
    switch (action.command) {
    case PanelCommand::Swallow:
        return;
    case PanelCommand::AskToDeleteCard:
        if (store.cardCount() >= 2)
            m_context.notifications.post(kDeleteCardNotification);
        return;
    case PanelCommand::Undo:
        return m_undoManager->undo();
    case PanelCommand::Redo:
        return m_undoManager->redo();
    case PanelCommand::BeginEditing:
        activateWindow();
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
