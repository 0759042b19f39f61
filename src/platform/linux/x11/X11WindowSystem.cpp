#include "platform/linux/x11/X11WindowSystem.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <utility>

namespace cuebright {

namespace {

/// Two windows minimised within this time were minimised by the window manager as a group, not separately by the user.
constexpr Seconds kMinimisedTogether {0.1};

} // namespace

X11WindowSystem::X11WindowSystem(const X11Connection& x11, MainQueue& mainQueue)
    : m_x11(x11)
    , m_mainQueue(mainQueue)
    , m_activeWindowAtom(x11.atom("_NET_ACTIVE_WINDOW"))
    , m_stateAtom(x11.atom("_NET_WM_STATE"))
    , m_aboveAtom(x11.atom("_NET_WM_STATE_ABOVE"))
    , m_fullScreenAtom(x11.atom("_NET_WM_STATE_FULLSCREEN"))
    , m_userTimeAtom(x11.atom("_NET_WM_USER_TIME"))
    , m_blurAtom(x11.atom("_KDE_NET_WM_BLUR_BEHIND_REGION"))
    , m_managedAtom(x11.atom("WM_STATE"))
{
    x11.selectEvents(x11.root(), x11.events(x11.root()) | XCB_EVENT_MASK_PROPERTY_CHANGE);
    QCoreApplication::instance()->installNativeEventFilter(this);
}

void X11WindowSystem::keepAboveFullScreen(WindowId window)
{
    m_windows.try_emplace(static_cast<xcb_window_t>(window));
    // 0: no focus when the window is mapped. For a window that was minimised Qt 6.4 sets this too late, after mapping
    // it.
    m_x11.setProperty(static_cast<xcb_window_t>(window), m_userTimeAtom, XCB_ATOM_CARDINAL, {0});
    followActiveWindow();
    updateTransience(static_cast<xcb_window_t>(window));
}

void X11WindowSystem::release(WindowId window)
{
    if (m_windows.erase(static_cast<xcb_window_t>(window)) > 0)
        m_x11.deleteProperty(static_cast<xcb_window_t>(window), XCB_ATOM_WM_TRANSIENT_FOR);
}

void X11WindowSystem::setBlurBehind(WindowId window, bool isOn)
{
    // An empty list of rectangles means the whole window.
    if (isOn)
        m_x11.setProperty(static_cast<xcb_window_t>(window), m_blurAtom, XCB_ATOM_CARDINAL, {});
    else
        m_x11.deleteProperty(static_cast<xcb_window_t>(window), m_blurAtom);
}

bool X11WindowSystem::nativeEventFilter(const QByteArray&, void* message, qintptr*)
{
    const auto* const event = static_cast<const xcb_generic_event_t*>(message);
    const auto type = event->response_type & ~0x80;
    if (type == XCB_PROPERTY_NOTIFY) {
        const auto* const change = reinterpret_cast<const xcb_property_notify_event_t*>(event);
        const bool isActivation = change->window == m_x11.root() && change->atom == m_activeWindowAtom;
        const bool isNewState = change->window == m_watched && change->atom == m_stateAtom;
        if (isActivation || isNewState)
            followActiveWindow();
    } else if (type == XCB_DESTROY_NOTIFY || type == XCB_UNMAP_NOTIFY) {
        const auto* const end = reinterpret_cast<const xcb_unmap_notify_event_t*>(event);
        if (end->window == m_watched)
            followActiveWindow();
        if (m_windows.contains(end->window))
            checkMinimised(end->window);
    } else if (type == XCB_MAP_NOTIFY) {
        // When Qt shows a window again, it removes the properties that it did not set itself (6.4).
        const auto* const map = reinterpret_cast<const xcb_map_notify_event_t*>(event);
        if (m_windows.contains(map->window)) {
            askToKeepAbove(map->window);
            if (m_fullScreenWindow != XCB_WINDOW_NONE)
                updateTransience(map->window);
        }
    }
    return false;
}

xcb_window_t X11WindowSystem::activeWindow() const
{
    const auto active = m_x11.property(m_x11.root(), m_activeWindowAtom);
    return active.empty() ? static_cast<xcb_window_t>(XCB_WINDOW_NONE) : active.front();
}

bool X11WindowSystem::isFullScreen(xcb_window_t window) const
{
    return std::ranges::count(m_x11.property(window, m_stateAtom), m_fullScreenAtom) > 0;
}

void X11WindowSystem::followActiveWindow()
{
    if (m_windows.empty())
        return;
    const auto active = activeWindow();
    const auto others = m_windows.contains(active) ? static_cast<xcb_window_t>(XCB_WINDOW_NONE) : active;
    if (others != m_watched)
        watch(others);
    const bool isCovering = others != XCB_WINDOW_NONE && isFullScreen(others);
    const auto fullScreenWindow = isCovering ? others : static_cast<xcb_window_t>(XCB_WINDOW_NONE);
    if (fullScreenWindow == m_fullScreenWindow)
        return;
    m_formerFullScreenWindow = std::exchange(m_fullScreenWindow, fullScreenWindow);
    m_forgetFormer = m_mainQueue.after(kMinimisedTogether, [this] { m_formerFullScreenWindow = XCB_WINDOW_NONE; });
    for (const auto& [window, check] : m_windows)
        updateTransience(window);
}

void X11WindowSystem::watch(xcb_window_t window)
{
    if (m_watched != XCB_WINDOW_NONE)
        m_x11.selectEvents(m_watched, m_eventsBefore); // its events would wake the program for nothing
    m_watched = window;
    if (window == XCB_WINDOW_NONE)
        return;
    m_eventsBefore = m_x11.events(window);
    m_x11.selectEvents(window, m_eventsBefore | XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY);
}

bool X11WindowSystem::isMinimised(xcb_window_t window) const
{
    constexpr std::uint32_t kIconicState = 3; // Inter-Client Communication Conventions Manual 4.1.3.1
    const auto state = m_x11.property(window, m_managedAtom);
    return !state.empty() && state.front() == kIconicState;
}

/// Window managers minimise a window together with its transient windows, in either order.
void X11WindowSystem::checkMinimised(xcb_window_t window)
{
    constexpr std::array<xcb_window_t, 2> kNone {XCB_WINDOW_NONE, XCB_WINDOW_NONE};
    const std::array below {m_fullScreenWindow, m_formerFullScreenWindow};
    if (below == kNone)
        return;
    m_windows[window] = m_mainQueue.after(kMinimisedTogether, [this, window, below] {
        const bool isMinimisedTogether = std::ranges::any_of(below, [this](auto other) { return isMinimised(other); });
        if (!isMinimised(window) || !isMinimisedTogether)
            return;
        m_formerFullScreenWindow = XCB_WINDOW_NONE; // from now on, minimising counts as the user's
        minimisedWithFullScreen.notify(window);
    });
}

/// A minimised window is withdrawn before it is shown again, and the window manager may clear its state only after Qt
/// has written it again.
void X11WindowSystem::askToKeepAbove(xcb_window_t window) const
{
    constexpr std::uint32_t kAdd = 1; // Extended Window Manager Hints, _NET_WM_STATE
    constexpr std::uint32_t kFromApplication = 1;
    m_x11.askWindowManager(window, m_stateAtom, {kAdd, m_aboveAtom, XCB_ATOM_NONE, kFromApplication, 0});
}

void X11WindowSystem::updateTransience(xcb_window_t window) const
{
    if (m_fullScreenWindow == XCB_WINDOW_NONE)
        m_x11.deleteProperty(window, XCB_ATOM_WM_TRANSIENT_FOR);
    else
        m_x11.setProperty(window, XCB_ATOM_WM_TRANSIENT_FOR, XCB_ATOM_WINDOW, {m_fullScreenWindow});
}

} // namespace cuebright
