#include "desktop/DesktopDisplay.h"

namespace cuebright::test {

void Desktop::askWindowManager(WindowId window, const char* request, const std::vector<long>& data) const
{
    XEvent event {};
    event.xclient.type = ClientMessage;
    event.xclient.window = window;
    event.xclient.message_type = m_display->atom(request);
    event.xclient.format = 32;
    std::ranges::copy(data, event.xclient.data.l);
    XSendEvent(
        m_display->connection, m_display->root, False, SubstructureRedirectMask | SubstructureNotifyMask, &event);
    XSync(m_display->connection, False);
}

Desktop::WindowId Desktop::openWindow(Size size)
{
    const WindowId window =
        XCreateSimpleWindow(m_display->connection, m_display->root, 20, 20, 300, 200, 0, 0, 0x336699);
    if (size == Size::FullScreen) {
        const Atom fullScreen = m_display->atom("_NET_WM_STATE_FULLSCREEN");
        XChangeProperty(m_display->connection, window, m_display->atom("_NET_WM_STATE"), XA_ATOM, 32, PropModeReplace,
            reinterpret_cast<const unsigned char*>(&fullScreen), 1);
    }
    XMapWindow(m_display->connection, window);
    if (!waitUntil([&] { return isOnScreen(window); }))
        throw std::runtime_error("the window does not come up");
    askWindowManager(window, "_NET_ACTIVE_WINDOW", {2, 0, 0, 0, 0}); // 2: the user himself
    if (!waitUntil([&] { return isActive(window); }))
        throw std::runtime_error("the window does not get the keyboard");
    return window;
}

void Desktop::closeWindow(WindowId window)
{
    XDestroyWindow(m_display->connection, window);
    XSync(m_display->connection, False);
    (void)waitUntil([&] {
        const auto managed = m_display->property<WindowId>(m_display->root, "_NET_CLIENT_LIST");
        return std::ranges::find(managed, window) == managed.end();
    });
}

void Desktop::leaveFullScreen(WindowId window)
{
    const Atom fullScreen = m_display->atom("_NET_WM_STATE_FULLSCREEN");
    askWindowManager(window, "_NET_WM_STATE", {0, static_cast<long>(fullScreen), 0, 2, 0}); // 0: remove
}

void Desktop::minimise(WindowId window)
{
    XIconifyWindow(m_display->connection, window, DefaultScreen(m_display->connection));
    XSync(m_display->connection, False);
}

void Desktop::cutOff(WindowId window)
{
    XKillClient(m_display->connection, window);
    XSync(m_display->connection, False);
}

void Desktop::askToClose(WindowId window) { askWindowManager(window, "_NET_CLOSE_WINDOW", {0, 2, 0, 0, 0}); }

std::shared_ptr<void> Desktop::grabHotKey()
{
    auto other = std::make_shared<Display>(m_environment.at("DISPLAY"));
    XGrabKey(other->connection, XKeysymToKeycode(other->connection, XStringToKeysym("s")), ControlMask | ShiftMask,
        other->root, False, GrabModeAsync, GrabModeAsync);
    XSync(other->connection, False);
    return other;
}

} // namespace cuebright::test
