#pragma once

#include "platform/MainQueue.h"
#include "platform/WindowSystem.h"
#include "platform/linux/x11/X11Connection.h"

#include <QAbstractNativeEventFilter>

#include <map>

namespace cuebright {

/// Keeps windows above others on X11, with the Extended Window Manager Hints and KWin's blur hint.
///
/// An active full-screen window is stacked above windows in the state "above". While there is one, the windows kept
/// above are made transient for it: window managers stack transient windows over their parent, and the focus stays
/// where it is.
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
    void checkMinimised(xcb_window_t window);
    void askToKeepAbove(xcb_window_t window) const;
    void updateTransience(xcb_window_t window) const;

    const X11Connection& m_x11;
    MainQueue& m_mainQueue;
    const xcb_atom_t m_activeWindowAtom;
    const xcb_atom_t m_stateAtom;
    const xcb_atom_t m_aboveAtom;
    const xcb_atom_t m_fullScreenAtom;
    const xcb_atom_t m_userTimeAtom;
    const xcb_atom_t m_blurAtom;
    const xcb_atom_t m_managedAtom;
    std::map<xcb_window_t, PendingTask> m_windows; ///< kept above others, each with its pending checkMinimised
    xcb_window_t m_watched = XCB_WINDOW_NONE; ///< the active window, unless it is one of m_windows
    std::uint32_t m_eventsBefore = 0; ///< the watched window's event mask before we watched it
    xcb_window_t m_fullScreenWindow = XCB_WINDOW_NONE; ///< m_watched while it is full-screen
    xcb_window_t m_formerFullScreenWindow =
        XCB_WINDOW_NONE; ///< the previous m_fullScreenWindow, for kMinimisedTogether
    PendingTask m_forgetFormer;
};

} // namespace cuebright
