#include "ui/panel/NotesPanel.h"

#include "ui/base/Notifications.h"

#include "foundation/NotificationCenter.h"
#include "platform/qt/QtColors.h"
#include "store/CardStore.h"
#include "store/UndoManager.h"
#include "ui/accessibility/AccessibleWindows.h"
#include "ui/base/ModalSheets.h"
#include "ui/editor/MarkdownEditor.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWindow>

#include <utility>

namespace cuebright {

NotesPanel::NotesPanel(const UiContext& context)
    : QWidget(nullptr, Qt::Window | Qt::WindowStaysOnTopHint)
    , m_context(context)
    , m_undoManager(std::make_shared<UndoManager>())
    , m_keyMonitor(*this, [this](const QKeyEvent& event) { return actionFor(event); })
{
    presentWindowsToScreenReaders();
    setAttribute(Qt::WA_ShowWithoutActivating);
    qApp->installEventFilter(this);
}

NotesPanel::~NotesPanel() = default;

void NotesPanel::orderFront()
{
    if (isMinimized()) {
        hide(); // brought back as it is, it would take the keyboard
        setWindowState(windowState() & ~Qt::WindowMinimized);
    }
    show();
    if (!QApplication::activePopupWidget()) // a restacked window would cover its own pop-up
        raise();
}

void NotesPanel::orderOut()
{
    dismissMenusAndSheets();
    hide();
}

void NotesPanel::activate()
{
    raise();
    activateWindow();
}

void NotesPanel::dismissMenusAndSheets()
{
    while (const auto popup = QApplication::activePopupWidget()) {
        if (!popup->close())
            break;
    }
    dismissSheets(*this);
}

bool NotesPanel::event(QEvent* event)
{
    if (event->type() == QEvent::WindowBlocked || event->type() == QEvent::WindowUnblocked)
        isBlockedChanged.notify();
    return QWidget::event(event);
}

/// Every press on the panel comes by here, whatever it is on.
bool NotesPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::MouseButtonPress || watched != windowHandle())
        return false;
    if (m_context.store.isEditing())
        MarkdownEditor::commitComposition(); // the click may end the edit
    if (!isActiveWindow())
        activate();
    return false;
}

void NotesPanel::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        m_pressedSpot = event->position().toPoint();
}

void NotesPanel::mouseMoveEvent(QMouseEvent* event)
{
    if (!m_pressedSpot || !(event->buttons() & Qt::LeftButton))
        return;
    const auto way = event->position().toPoint() - *m_pressedSpot;
    if (way.manhattanLength() < QApplication::startDragDistance())
        return; // may become a double click yet
    m_pressedSpot.reset();
    windowHandle()->startSystemMove();
}

void NotesPanel::mouseReleaseEvent(QMouseEvent*) { m_pressedSpot.reset(); }

void NotesPanel::closeEvent(QCloseEvent* event)
{
    event->ignore();
    orderOut();
}

void NotesPanel::showEvent(QShowEvent*) { noticeIfOnScreenChanged(); }

void NotesPanel::hideEvent(QHideEvent*) { noticeIfOnScreenChanged(); }

void NotesPanel::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange)
        noticeIfOnScreenChanged();
}

void NotesPanel::noticeIfOnScreenChanged()
{
    if (std::exchange(m_wasOnScreen, isOnScreen()) != isOnScreen())
        isOnScreenChanged.notify();
}

/// Seen only where the content does not reach: around it while the panel comes and goes.
void NotesPanel::paintEvent(QPaintEvent* event)
{
    QPainter(this).fillRect(event->rect(), toQColor(m_context.colors().warmBg()));
}

KeyMonitor::Action NotesPanel::actionFor(const QKeyEvent& event)
{
    const auto action = panelKeyAction(KeyStroke::of(event), m_context.store.isEditing());
    if (!action)
        return {};
    if (event.isAutoRepeat() && !repeatsWhileHeld(action->command))
        return [] {};
    return [this, action] { perform(*action); };
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
        activate();
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
