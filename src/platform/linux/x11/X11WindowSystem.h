#pragma once

#include "foundation/WeakTarget.h"
#include "platform/MainQueue.h"
#include "platform/WindowSystem.h"
#include "platform/linux/x11/X11Connection.h"

#include <QAbstractNativeEventFilter>

#include <set>

namespace cuebright {

/// Floating on X11, by the means of the Extended Window Manager Hints and KWin's blur hint.
///
/// A full-screen window that is active lies above windows that are merely "above". While there is one, the windows kept
/// above are transient for it, which lifts them over it and leaves the keyboard alone.
class X11WindowSystem final : public WindowSystem, public QAbstractNativeEventFilter {
public:
    X11WindowSystem(const X11Connection& x11, MainQueue& mainQueue);

    void keepAboveFullScreen(WindowId window) override;
    void release(WindowId window) override;
    void setBlurBehind(WindowId window, bool isOn) override;

    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

private:
    [[nodiscard]] xcb_window_t activeWindow() const;
    [[nodiscard]] bool isFullScreen(xcb_window_t window) const;
    void followActiveWindow();
    void watch(xcb_window_t window);
    [[nodiscard]] bool isMinimised(xcb_window_t window) const;
    void examineUnmapped(xcb_window_t window);
    void askToKeepAbove(xcb_window_t window) const;
    void lift(xcb_window_t window) const;

    const X11Connection& m_x11;
    MainQueue& m_mainQueue;
    const xcb_atom_t m_activeWindowAtom;
    const xcb_atom_t m_stateAtom;
    const xcb_atom_t m_aboveAtom;
    const xcb_atom_t m_fullScreenAtom;
    const xcb_atom_t m_userTimeAtom;
    const xcb_atom_t m_blurAtom;
    const xcb_atom_t m_managedAtom;
    std::set<xcb_window_t> m_windows; ///< that are kept above
    xcb_window_t m_watched = XCB_WINDOW_NONE; ///< the active one, unless it is ours
    std::uint32_t m_eventsBefore = 0; ///< of the watched one
    xcb_window_t m_fullScreenWindow = XCB_WINDOW_NONE; ///< the same while it is full-screen
    xcb_window_t m_formerFullScreenWindow = XCB_WINDOW_NONE; ///< was so until a moment ago
    PendingTask m_forgetFormer;
    WeakTarget m_weakTarget;
};

} // namespace cuebright
