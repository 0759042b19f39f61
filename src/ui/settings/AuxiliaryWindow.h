#pragma once

#include "foundation/Signal.h"
#include "ui/base/UiContext.h"

#include <QWidget>

namespace cuebright {

/// A window of a fixed size that belongs to the program rather than to the panel: above other windows as the panel is,
/// and beside it. Closing it, also by Escape or Ctrl+W, puts it away.
class AuxiliaryWindow : public QWidget {
public:
    ~AuxiliaryWindow() override;

    /// Brings the window to the front and gives it the keyboard. One that is on the screen stays where it is.
    void showBeside(const QWidget& panel);

protected:
    AuxiliaryWindow(const UiContext& context, const QString& title);

    /// Called before the window is placed: the last time to give it its size.
    virtual void settleSize() { }
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    const UiContext& m_context;

private:
    void placeBesidePanel(const QWidget& panel);
    void comeBack();

    Subscription m_minimisedSubscription;
};

} // namespace cuebright
