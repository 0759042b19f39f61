#pragma once

#include "platform/MainQueue.h"

#include <QObject>
#include <QRect>
#include <QSize>

class QWidget;

namespace cuebright {

struct UiContext;

/// Restores a window's geometry from `cuebrightWindowFrame`. Saves it there 0.5 s after the user last moved or resized
/// the window, or on destruction. Moves by the program are not saved, such as the one to the centre of the primary
/// screen when the window's screen is removed.
class FrameMemory final : public QObject {
public:
    /// `window` outlives this.
    FrameMemory(const UiContext& context, QWidget& window, const QSize& defaultSize);
    ~FrameMemory() override;

    /// Falls back to the default size in the centre of the primary screen.
    void restore();
    /// Call before each show. Repositions a hidden window, in the centre if its screen has been removed meanwhile.
    void prepareToShow();
    void cancelPendingSave();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void centreIfOffScreen();
    void save();
    void place(const QRect& frame);

    const UiContext& m_context;
    QWidget& m_window;
    QSize m_defaultSize;
    QRect m_knownFrame;
    bool m_isSavePending = false;
    PendingTask m_save;
};

} // namespace cuebright
