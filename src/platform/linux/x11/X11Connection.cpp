#include "platform/linux/x11/X11Connection.h"

#include <QGuiApplication>

#include <algorithm>
#include <cstring>

namespace cuebright {

std::unique_ptr<X11Connection> X11Connection::ofApplication()
{
    const auto application = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!application || !application->connection())
        return nullptr;
    const auto connection = application->connection();
    // Qt uses the first screen only.
    const auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
    return std::unique_ptr<X11Connection>(new X11Connection(connection, screens.data, 0));
}

xcb_atom_t X11Connection::atom(const char* name) const
{
    const auto cookie = xcb_intern_atom(m_connection, 0, static_cast<std::uint16_t>(std::strlen(name)), name);
    const XcbReply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(m_connection, cookie, nullptr));
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

std::vector<std::uint32_t> X11Connection::property(xcb_window_t window, xcb_atom_t name) const
{
    constexpr std::uint32_t kMostItems = 1024;
    const auto cookie = xcb_get_property(m_connection, 0, window, name, XCB_ATOM_ANY, 0, kMostItems);
    const XcbReply<xcb_get_property_reply_t> reply(xcb_get_property_reply(m_connection, cookie, nullptr));
    if (!reply || reply->format != 32)
        return {};
    const auto* const first = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
    return {first, first + reply->value_len};
}

void X11Connection::setProperty(
    xcb_window_t window, xcb_atom_t name, xcb_atom_t type, std::initializer_list<std::uint32_t> items) const
{
    xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, window, name, type, 32,
        static_cast<std::uint32_t>(items.size()), items.begin());
    xcb_flush(m_connection);
}

void X11Connection::deleteProperty(xcb_window_t window, xcb_atom_t name) const
{
    xcb_delete_property(m_connection, window, name);
    xcb_flush(m_connection);
}

void X11Connection::askWindowManager(
    xcb_window_t window, xcb_atom_t request, const std::array<std::uint32_t, 5>& data) const
{
    xcb_client_message_event_t message {};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = request;
    std::ranges::copy(data, message.data.data32);
    xcb_send_event(m_connection, 0, root(), XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
        reinterpret_cast<const char*>(&message));
    xcb_flush(m_connection);
}

std::uint32_t X11Connection::events(xcb_window_t window) const
{
    const auto cookie = xcb_get_window_attributes(m_connection, window);
    const XcbReply<xcb_get_window_attributes_reply_t> now(
        xcb_get_window_attributes_reply(m_connection, cookie, nullptr));
    return now ? now->your_event_mask : 0;
}

void X11Connection::selectEvents(xcb_window_t window, std::uint32_t mask) const
{
    // Checked, with the result discarded: Qt would print an error about a window that has just been destroyed.
    const auto cookie = xcb_change_window_attributes_checked(m_connection, window, XCB_CW_EVENT_MASK, &mask);
    xcb_discard_reply(m_connection, cookie.sequence);
}

} // namespace cuebright
