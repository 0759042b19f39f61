#include "ui/panel/KeyMonitor.h"

#include "ui/base/ModalSheets.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenuBar>
#include <QWidget>
#include <QWindow>

#include <utility>

namespace cuebright {

namespace {

bool isKeyboardElsewhere(const QWidget& window)
{
    return QApplication::activePopupWidget() || isWaitingForAnswer(window)
        || qobject_cast<QMenuBar*>(QApplication::focusWidget());
}

} // namespace

KeyMonitor::KeyMonitor(const QWidget& window, std::function<Action(const QKeyEvent&)> actionFor)
    : m_window(window)
    , m_actionFor(std::move(actionFor))
{
    qApp->installEventFilter(this);
}

/// A key reaches the window first as an offer to override shortcuts, then as a press. Taking the offer keeps the menus
/// out; the press acts. The widgets inside see neither.
bool KeyMonitor::eventFilter(QObject* watched, QEvent* event)
{
    const bool isOffer = event->type() == QEvent::ShortcutOverride;
    if ((!isOffer && event->type() != QEvent::KeyPress) || watched != m_window.windowHandle()
        || isKeyboardElsewhere(m_window))
        return false;
    const auto action = m_actionFor(*static_cast<QKeyEvent*>(event));
    if (!action)
        return false;
    event->accept();
    if (!isOffer)
        action();
    return true;
}

} // namespace cuebright
