#pragma once

#include <QObject>

#include <functional>

class QKeyEvent;
class QWidget;

namespace cuebright {

/// Sees the keys that reach a window before its menus and all that is in it, each key once.
///
/// Keeps out while a pop-up, a sheet or the menu bar has the keyboard.
class KeyMonitor final : public QObject {
public:
    /// What a key does; empty for a key that is to go its way.
    using Action = std::function<void()>;

    /// `actionFor` is asked several times for one key and must not act itself. `window` outlives this.
    KeyMonitor(const QWidget& window, std::function<Action(const QKeyEvent&)> actionFor);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    const QWidget& m_window;
    std::function<Action(const QKeyEvent&)> m_actionFor;
};

} // namespace cuebright
