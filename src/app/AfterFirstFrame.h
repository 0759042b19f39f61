#pragma once

#include <QBasicTimer>
#include <QObject>
#include <QPointer>

#include <functional>

class QWidget;
class QWindow;

namespace cuebright {

/// Runs work as soon as a window has drawn itself for the first time, and anyway after two seconds: a window on another
/// virtual desktop never draws.
class AfterFirstFrame final : public QObject {
public:
    /// `window` has its native window already.
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
