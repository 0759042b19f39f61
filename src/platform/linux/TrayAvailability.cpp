#include "platform/system/TrayAvailability.h"

#include "platform/linux/x11/X11Connection.h"

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QTimer>

#include <string>
#include <utility>

namespace cuebright {

namespace {

QString statusNotifierWatcher() { return QStringLiteral("org.kde.StatusNotifierWatcher"); }

/// A tray on the X server (freedesktop.org's System Tray Protocol) owns a selection and announces itself by a message
/// to the root window, which Qt subscribes to.
class XEmbedTray final : public QAbstractNativeEventFilter {
public:
    explicit XEmbedTray(std::function<void()> announced)
        : m_x11(X11Connection::ofApplication())
        , m_announced(std::move(announced))
    {
        if (!m_x11)
            return;
        m_selection = m_x11->atom(("_NET_SYSTEM_TRAY_S" + std::to_string(m_x11->screenNumber())).c_str());
        m_manager = m_x11->atom("MANAGER");
        QCoreApplication::instance()->installNativeEventFilter(this);
    }

    bool isAvailable() const
    {
        if (!m_x11)
            return false;
        const auto cookie = xcb_get_selection_owner(m_x11->get(), m_selection);
        const XcbReply<xcb_get_selection_owner_reply_t> reply(
            xcb_get_selection_owner_reply(m_x11->get(), cookie, nullptr));
        return reply && reply->owner != XCB_WINDOW_NONE;
    }

    bool nativeEventFilter(const QByteArray&, void* message, qintptr*) override
    {
        const auto* const event = static_cast<const xcb_client_message_event_t*>(message);
        if ((event->response_type & ~0x80) == XCB_CLIENT_MESSAGE && event->type == m_manager
            && event->data.data32[1] == m_selection)
            m_announced();
        return false;
    }

private:
    std::unique_ptr<X11Connection> m_x11;
    std::function<void()> m_announced;
    xcb_atom_t m_selection = XCB_ATOM_NONE;
    xcb_atom_t m_manager = XCB_ATOM_NONE;
};

} // namespace

/// Qt decides once, when it is first asked, whether tray icons go to the bus or to the X server (Qt 6.4). So it must
/// not be asked before one of the two has a tray, and the bus is preferred.
struct TrayAvailability::System {
    explicit System(std::function<void()> available)
    {
        notification.setSingleShot(true);
        QObject::connect(&notification, &QTimer::timeout, &notification, std::move(available));
        QObject::connect(&watcher, &QDBusServiceWatcher::serviceRegistered, &watcher, [this] { notify(); });
        askBus(QDBusConnection::sessionBus());
    }

    void askBus(const QDBusConnection& bus)
    {
        if (!bus.isConnected())
            return onBusReply(false); // a call would get no reply
        auto call = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"),
            QStringLiteral("/org/freedesktop/DBus"), QStringLiteral("org.freedesktop.DBus"),
            QStringLiteral("NameHasOwner"));
        call << statusNotifierWatcher();
        const auto pending = new QDBusPendingCallWatcher(bus.asyncCall(call), &watcher);
        QObject::connect(pending, &QDBusPendingCallWatcher::finished, &watcher, [this, pending] {
            pending->deleteLater();
            const QDBusPendingReply<bool> reply(*pending);
            onBusReply(reply.isValid() && reply.value());
        });
    }

    void onBusReply(bool isOnBus)
    {
        hasBusReply = true;
        if (isOnBus || xEmbedTray.isAvailable())
            notify();
    }

    void notify()
    {
        if (!std::exchange(hasNotified, true))
            notification.start(0);
    }

    XEmbedTray xEmbedTray {[this] {
        if (hasBusReply)
            notify();
    }};
    QDBusServiceWatcher watcher {
        statusNotifierWatcher(), QDBusConnection::sessionBus(), QDBusServiceWatcher::WatchForRegistration};
    QTimer notification {};
    bool hasBusReply = false;
    bool hasNotified = false;
};

TrayAvailability::TrayAvailability(std::function<void()> available)
    : m_system(std::make_unique<System>(std::move(available)))
{
}

TrayAvailability::~TrayAvailability() = default;

/// On the bus (com.canonical.dbusmenu) "_" precedes an access key, "__" is a literal "_", and "&" is an ordinary
/// letter. Qt converts the first "&" that is not the last letter to "_" and nothing else (Qt 6.4).
QString exportedMenuText(QString title)
{
    title.replace(QLatin1Char('_'), QStringLiteral("__"));
    if (const auto first = title.indexOf(QLatin1Char('&')); first >= 0)
        title.insert(first, QLatin1Char('&'));
    return title;
}

} // namespace cuebright
