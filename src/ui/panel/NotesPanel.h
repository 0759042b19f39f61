#pragma once

#include "foundation/Signal.h"
#include "ui/base/UiContext.h"

#include <QPoint>
#include <QWidget>

#include <memory>
#include <optional>

namespace cuebright {

class UndoManager;

/// The window with the cards. It stays above all others and takes focus when clicked, never by being shown. Dragging an
/// empty spot moves it. Closing only hides it. Owns the undo stack of the whole store.
class NotesPanel final : public QWidget {
public:
    explicit NotesPanel(const UiContext& context);
    ~NotesPanel() override;

    [[nodiscard]] const std::shared_ptr<UndoManager>& undoManager() const { return m_undoManager; }

    /// Neither hidden nor minimised.
    [[nodiscard]] bool isOnScreen() const { return isVisible() && !isMinimized(); }

    /// Shows the panel above the other windows without giving it focus.
    void orderFront();
    /// Hides the panel; see `dismissMenusAndSheets()`.
    void orderOut();
    /// Closes the panel's menus and cancels its sheets.
    void dismissMenusAndSheets();
    /// Gives the panel focus.
    void activate();

    /// Emitted whoever shows, hides or minimises the panel.
    Signal<> isOnScreenChanged;

    /// Emitted when a modal dialog starts or stops blocking the panel.
    Signal<> isBlockedChanged;

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void notifyIfOnScreenChanged();

    const UiContext& m_context;
    std::shared_ptr<UndoManager> m_undoManager;
    bool m_wasOnScreen = false;
    std::optional<QPoint> m_pressedSpot; ///< where a press on an empty spot began
};

} // namespace cuebright
