#pragma once

#include "foundation/Signal.h"
#include "ui/base/UiContext.h"

#include <QWidget>

namespace cuebright {

/// A top-level window that opens beside the panel and, like the panel, stays above other windows. Closing it, also with
/// Escape or Ctrl+W, only hides it.
class AuxiliaryWindow : public QWidget {
public:
    ~AuxiliaryWindow() override;

    /// Shows, raises and activates the window. It is placed beside `panel` unless it is visible already.
    void showBeside(const QWidget& panel);

protected:
    AuxiliaryWindow(const UiContext& context, const QString& title);

    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    const UiContext& m_context;

private:
    void place(const QWidget& panel);
    void restore();

    Subscription m_minimisedSubscription;
};

} // namespace cuebright
