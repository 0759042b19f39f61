#include "ui/settings/AuxiliaryWindow.h"

#include "platform/WindowSystem.h"
#include "ui/base/ModalSheets.h"
#include "ui/settings/WindowPlacement.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLayout>
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
    setAttribute(Qt::WA_ShowWithoutActivating); // read when the native window is created
    m_minimisedSubscription =
        context.desktop.windowSystem.minimisedWithFullScreen.subscribe([this](WindowSystem::WindowId window) {
            if (window == internalWinId())
                restore();
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
        setWindowState(windowState() & ~Qt::WindowMinimized);
        layout()->activate(); // updates the size
        place(panel);
        m_context.desktop.windowSystem.keepAboveFullScreen(winId());
        show();
    } else if (isMinimized()) {
        showNormal();
    }
    raise();
    activateWindow();
}

/// Hides and shows the window because showNormal() would activate it. Sheets would end up below it, so they are
/// dismissed.
void AuxiliaryWindow::restore()
{
    dismissSheets(*this);
    m_context.desktop.windowSystem.keepAboveFullScreen(winId());
    hide();
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
}

/// A window that was never shown has no frame margins yet, so the panel's are used.
void AuxiliaryWindow::place(const QWidget& panel)
{
    const auto panelFrame = panel.frameGeometry();
    auto screen = QGuiApplication::screenAt(panelFrame.center());
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    if (!screen)
        return;
    const auto content = panel.geometry();
    const QMargins margins(content.left() - panelFrame.left(), content.top() - panelFrame.top(),
        panelFrame.right() - content.right(), panelFrame.bottom() - content.bottom());
    const auto frame = placeBeside(panelFrame, size().grownBy(margins), screen->availableGeometry());
    setGeometry(frame.marginsRemoved(margins));
}

/// Only hides: closing would destroy the native window, whose handle the window system keeps.
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
