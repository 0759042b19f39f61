#pragma once

#include "foundation/Signal.h"
#include "ui/base/UiContext.h"
#include "ui/panel/KeyMonitor.h"
#include "ui/panel/PanelKeys.h"

#include <QPoint>
#include <QWidget>

#include <memory>
#include <optional>

namespace cuebright {

class UndoManager;

/// The window with the cards: above all others, never taking the keyboard by being shown, always by being clicked.
/// Owns the undo stack of the whole store and answers the panel's keys before anything in it sees them.
///
/// Closing it puts it away; it is there as long as its owner keeps it. Any spot that nothing else uses moves it.
class NotesPanel final : public QWidget {
public:
    explicit NotesPanel(const UiContext& context);
    ~NotesPanel() override;

    [[nodiscard]] const std::shared_ptr<UndoManager>& undoManager() const { return m_undoManager; }

    /// Neither hidden nor minimised.
    [[nodiscard]] bool isOnScreen() const { return isVisible() && !isMinimized(); }

    /// Puts the panel above the other windows without giving it the keyboard.
    void orderFront();
    /// Takes the panel off the screen. Its menus close, its sheets are answered with Cancel.
    void orderOut();
    void dismissMenusAndSheets();
    /// Gives the panel the keyboard.
    void activate();

    /// The panel has come to the screen, or has left it, by whatever way.
    Signal<> isOnScreenChanged;

    /// A question keeps the keyboard from the panel from now on, or no longer.
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
    [[nodiscard]] KeyMonitor::Action actionFor(const QKeyEvent& event);
    void perform(const PanelKeyAction& action);
    void noticeIfOnScreenChanged();

    const UiContext& m_context;
    std::shared_ptr<UndoManager> m_undoManager;
    KeyMonitor m_keyMonitor;
    bool m_wasOnScreen = false;
    std::optional<QPoint> m_pressedSpot; ///< of a press on an empty spot, in the panel
};

} // namespace cuebright
