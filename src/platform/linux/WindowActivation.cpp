#include "platform/system/WindowActivation.h"

#include "platform/linux/x11/StartupNotification.h"
#include "platform/linux/x11/X11Connection.h"

#include <QByteArray>
#include <QWidget>

#include <algorithm>
#include <cstring>

namespace cuebright {

namespace {

constexpr const char* kTokenVariable = "XDG_ACTIVATION_TOKEN";

void sendToRoot(const X11Connection& x11, const xcb_client_message_event_t& event, std::uint32_t receivers)
{
    xcb_send_event(x11.get(), 0, x11.root(), receivers, reinterpret_cast<const char*>(&event));
}

xcb_client_message_event_t clientMessage(xcb_window_t window, xcb_atom_t type, std::uint8_t format)
{
    xcb_client_message_event_t event {};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = format;
    event.window = window;
    event.type = type;
    return event;
}

/// As EWMH defines it. Not through Qt, whose time stamp is that of the last input to this program.
void activateOnX11(const X11Connection& x11, xcb_window_t window, std::uint32_t time)
{
    constexpr std::uint32_t kDirectUserAction = 2;
    auto event = clientMessage(window, x11.atom("_NET_ACTIVE_WINDOW"), 32);
    event.data.data32[0] = kDirectUserAction;
    event.data.data32[1] = time;
    sendToRoot(x11, event, XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT);
    xcb_flush(x11.get());
}

/// Startup Notification Protocol: a text in pieces of 20 bytes, terminated by a zero.
void broadcast(const X11Connection& x11, xcb_window_t window, const std::string& text)
{
    auto event = clientMessage(window, x11.atom("_NET_STARTUP_INFO_BEGIN"), 8);
    constexpr std::size_t kPiece = sizeof event.data.data8;
    for (std::size_t start = 0; start <= text.size(); start += kPiece) {
        std::ranges::fill(event.data.data8, std::uint8_t {0});
        std::memcpy(event.data.data8, text.data() + start, std::min(kPiece, text.size() - start));
        sendToRoot(x11, event, XCB_EVENT_MASK_PROPERTY_CHANGE);
        event.type = x11.atom("_NET_STARTUP_INFO");
    }
    xcb_flush(x11.get());
}

} // namespace

void activateForUser(QWidget& window, const std::string& token)
{
    if (const auto x11 = X11Connection::ofApplication()) {
        activateOnX11(*x11, static_cast<xcb_window_t>(window.winId()), startupTime(token));
        endLaunch(window, token);
        return;
    }
    // Qt reads it from there on Wayland. Child processes must not inherit it.
    qputenv(kTokenVariable, QByteArray::fromStdString(token));
    window.activateWindow();
    qunsetenv(kTokenVariable);
}

void endLaunch(QWidget& window, const std::string& token)
{
    const auto x11 = token.empty() ? nullptr : X11Connection::ofApplication();
    if (x11)
        broadcast(*x11, static_cast<xcb_window_t>(window.winId()), startupEndMessage(token));
}

} // namespace cuebright
