#pragma once

#include <QBasicTimer>
#include <QObject>
#include <QPointer>

#include <functional>

class QWidget;
class QWindow;

namespace cuebright {

/// Runs work once, after a window's first frame or after 2 s: a window on another virtual desktop never draws.
class AfterFirstFrame final : public QObject {
public:
    /// Call when `window` has its native window.
    AfterFirstFrame(const QWidget& window, std::function<void()> work);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    void finish();

    QPointer<QWindow> m_window;
    std::function<void()> m_work;
    QBasicTimer m_timeout;
};

} // namespace cuebright
