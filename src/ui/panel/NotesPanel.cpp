#include "ui/panel/NotesPanel.h"

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
{
    presentWindowsToScreenReaders();
    setAttribute(Qt::WA_ShowWithoutActivating);
}

NotesPanel::~NotesPanel() = default;

void NotesPanel::orderFront()
{
    if (isMinimized()) {
        hide(); // a minimised window would take focus when restored
        setWindowState(windowState() & ~Qt::WindowMinimized);
    }
    show();
    if (!QApplication::activePopupWidget()) // raised, the panel would cover its own pop-up
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
    switch (event->type()) {
    case QEvent::WinIdChange:
        if (const auto window = windowHandle())
            window->installEventFilter(this);
        break;
    case QEvent::WindowBlocked:
    case QEvent::WindowUnblocked:
        isBlockedChanged.notify();
        break;
    default:
        break;
    }
    return QWidget::event(event);
}

/// Sees every press on the panel, whichever widget it is on.
bool NotesPanel::eventFilter(QObject*, QEvent* event)
{
    if (event->type() != QEvent::MouseButtonPress)
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
    const auto moved = event->position().toPoint() - *m_pressedSpot;
    if (moved.manhattanLength() < QApplication::startDragDistance())
        return; // may still become a double click
    m_pressedSpot.reset();
    windowHandle()->startSystemMove();
}

void NotesPanel::mouseReleaseEvent(QMouseEvent*) { m_pressedSpot.reset(); }

void NotesPanel::closeEvent(QCloseEvent* event)
{
    event->ignore();
    orderOut();
}

void NotesPanel::showEvent(QShowEvent*) { notifyIfOnScreenChanged(); }

void NotesPanel::hideEvent(QHideEvent*) { notifyIfOnScreenChanged(); }

void NotesPanel::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange)
        notifyIfOnScreenChanged();
}

void NotesPanel::notifyIfOnScreenChanged()
{
    if (std::exchange(m_wasOnScreen, isOnScreen()) != isOnScreen())
        isOnScreenChanged.notify();
}

/// Visible only around the content, which is scaled while the panel shows or hides.
void NotesPanel::paintEvent(QPaintEvent* event)
{
    QPainter(this).fillRect(event->rect(), toQColor(m_context.colors().warmBg()));
}

} // namespace cuebright
