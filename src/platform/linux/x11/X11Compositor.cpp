#include "platform/linux/x11/X11Compositor.h"

#include <QCoreApplication>

#include <string>
#include <utility>

#include <xcb/xfixes.h>

namespace cuebright {

X11Compositor::X11Compositor(const X11Connection& x11)
    : m_x11(x11)
    , m_selection(x11.atom(("_NET_WM_CM_S" + std::to_string(x11.screenNumber())).c_str()))
    , m_isRunning(hasOwner())
{
    const auto* const extension = xcb_get_extension_data(x11.get(), &xcb_xfixes_id);
    if (!extension || !extension->present)
        return;
    // Qt has already negotiated the version of the extension.
    m_selectionEvent = static_cast<std::uint8_t>(extension->first_event + XCB_XFIXES_SELECTION_NOTIFY);
    xcb_xfixes_select_selection_input(x11.get(), x11.root(), m_selection,
        XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER | XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY
            | XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
    QCoreApplication::instance()->installNativeEventFilter(this);
}

bool X11Compositor::nativeEventFilter(const QByteArray&, void* message, qintptr*)
{
    const auto* const event = static_cast<const xcb_generic_event_t*>(message);
    if ((event->response_type & ~0x80) != m_selectionEvent)
        return false;
    const auto* const change = reinterpret_cast<const xcb_xfixes_selection_notify_event_t*>(event);
    if (change->selection == m_selection && std::exchange(m_isRunning, hasOwner()) != m_isRunning)
        changed.notify();
    return false;
}

bool X11Compositor::hasOwner() const
{
    const auto cookie = xcb_get_selection_owner(m_x11.get(), m_selection);
    const XcbReply<xcb_get_selection_owner_reply_t> reply(xcb_get_selection_owner_reply(m_x11.get(), cookie, nullptr));
    return reply && reply->owner != XCB_WINDOW_NONE;
}

} // namespace cuebright
