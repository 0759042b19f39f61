#include "ui/settings/AuxiliaryWindow.h"

#include "platform/WindowSystem.h"
#include "ui/base/ModalSheets.h"
#include "ui/settings/WindowPlacement.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QShortcut>

namespace cuebright {

AuxiliaryWindow::AuxiliaryWindow(const UiContext& context, const QString& title)
    : QWidget(nullptr,
        Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint
            | Qt::WindowCloseButtonHint | Qt::WindowStaysOnTopHint)
    , m_context(context)
{
    setWindowTitle(title);
    setAttribute(Qt::WA_ShowWithoutActivating); // counts from when the native window is made
    m_minimisedSubscription =
        context.desktop.windowSystem.minimisedWithFullScreen.subscribe([this](WindowSystem::WindowId window) {
            if (window == internalWinId())
                comeBack();
        });
    connect(new QShortcut(Qt::CTRL | Qt::Key_W, this), &QShortcut::activated, this, [this] { close(); });
}

AuxiliaryWindow::~AuxiliaryWindow()
{
    if (const auto handle = internalWinId())
        m_context.desktop.windowSystem.release(handle);
}

void AuxiliaryWindow::showBeside(const QWidget& panel)
{
    if (!isVisible()) {
        setWindowState(windowState() & ~Qt::WindowMinimized); // some window managers offer it all the same
        settleSize();
        placeBesidePanel(panel);
        m_context.desktop.windowSystem.keepAboveFullScreen(winId());
        show();
    } else if (isMinimized()) {
        showNormal();
    }
    raise();
    activateWindow();
}

/// Without the keyboard, which showing it as it is would take. A sheet would end up below its window.
void AuxiliaryWindow::comeBack()
{
    dismissSheets(*this);
    m_context.desktop.windowSystem.keepAboveFullScreen(winId());
    hide();
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
}

/// Before a window is first shown nobody knows how wide its borders are; the panel's are the best guess.
void AuxiliaryWindow::placeBesidePanel(const QWidget& panel)
{
    const auto panelFrame = panel.frameGeometry();
    const auto screenThere = QGuiApplication::screenAt(panelFrame.center());
    const auto screen = screenThere ? screenThere : QGuiApplication::primaryScreen();
    if (!screen)
        return;
    const auto content = panel.geometry();
    const QMargins borders(content.left() - panelFrame.left(), content.top() - panelFrame.top(),
        panelFrame.right() - content.right(), panelFrame.bottom() - content.bottom());
    const auto frame = placeBeside(panelFrame, size().grownBy(borders), screen->availableGeometry());
    setGeometry(frame.marginsRemoved(borders));
}

/// Only hides it: the toolkit would destroy the native window, which others know by its handle.
void AuxiliaryWindow::closeEvent(QCloseEvent* event)
{
    event->ignore();
    hide();
}

void AuxiliaryWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier)
        close();
    else
        QWidget::keyPressEvent(event);
}

} // namespace cuebright
