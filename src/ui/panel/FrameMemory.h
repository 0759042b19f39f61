#pragma once

#include "foundation/WeakTarget.h"
#include "platform/MainQueue.h"

#include <QObject>
#include <QRect>
#include <QSize>

class QWidget;

namespace cuebright {

struct UiContext;

/// Brings a window back to where the user left it, and keeps where that is under `cuebrightWindowFrame`: half a second
/// after the last move or resize, or when this goes. What the program does to the window itself does not count: as when
/// the screen that it is on goes, and it comes to the middle of the primary one.
class FrameMemory final : public QObject {
public:
    /// `window` outlives this.
    FrameMemory(const UiContext& context, QWidget& window, const QSize& defaultSize);
    ~FrameMemory() override;

    /// Puts the window where it was kept, or in the middle of the primary screen in its default size.
    void restore();
    /// Call before each show. A hidden window comes back to where it was, and to the middle if that screen has gone.
    void prepareToShow();
    /// What has not been kept yet is not kept at all.
    void cancelPendingSave();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fetchIfLost();
    void save();
    void place(const QRect& frame);

    const UiContext& m_context;
    QWidget& m_window;
    QSize m_defaultSize;
    QRect m_knownFrame;
    bool m_isSavePending = false;
    PendingTask m_save;
    WeakTarget m_weakTarget;
};

} // namespace cuebright
