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

/// A tray on the X server (freedesktop.org's System Tray Protocol) owns a selection and announces itself to the root
/// window, whose announcements the toolkit has asked for already.
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

    bool isThere() const
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

/// The toolkit decides for good, when it is first asked, whether its icons go to the bus or to the X server (Qt 6.4).
/// So it must not be asked before one of the two is there, and the bus comes first.
class LinuxTrayWatch final : public TrayAvailability {
public:
    explicit LinuxTrayWatch(std::function<void()> arrived)
        : m_xEmbedTray([this] { takeXEmbedTray(); })
        , m_watcher(statusNotifierWatcher(), QDBusConnection::sessionBus(), QDBusServiceWatcher::WatchForRegistration)
    {
        m_arrival.setSingleShot(true);
        QObject::connect(&m_arrival, &QTimer::timeout, &m_arrival, std::move(arrived));
        QObject::connect(&m_watcher, &QDBusServiceWatcher::serviceRegistered, &m_watcher, [this] { arrive(); });
        askBus(QDBusConnection::sessionBus());
    }

private:
    void askBus(const QDBusConnection& bus)
    {
        if (!bus.isConnected())
            return takeAnswer(false); // a call would never be answered
        auto question = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"),
            QStringLiteral("/org/freedesktop/DBus"), QStringLiteral("org.freedesktop.DBus"),
            QStringLiteral("NameHasOwner"));
        question << statusNotifierWatcher();
        const auto answer = new QDBusPendingCallWatcher(bus.asyncCall(question), &m_watcher);
        QObject::connect(answer, &QDBusPendingCallWatcher::finished, &m_watcher, [this, answer] {
            answer->deleteLater();
            const QDBusPendingReply<bool> reply(*answer);
            takeAnswer(reply.isValid() && reply.value());
        });
    }
    void takeAnswer(bool isOnBus)
    {
        m_hasAnswer = true;
        if (isOnBus || m_xEmbedTray.isThere())
            arrive();
    }
    void takeXEmbedTray()
    {
        if (m_hasAnswer)
            arrive();
    }
    void arrive()
    {
        if (!std::exchange(m_hasArrived, true))
            m_arrival.start(0);
    }

    XEmbedTray m_xEmbedTray;
    QDBusServiceWatcher m_watcher;
    QTimer m_arrival;
    bool m_hasAnswer = false;
    bool m_hasArrived = false;
};

} // namespace

std::unique_ptr<TrayAvailability> watchForTray(std::function<void()> arrived)
{
    return std::make_unique<LinuxTrayWatch>(std::move(arrived));
}

/// On the bus (com.canonical.dbusmenu) "_" stands before an access key, "__" for itself, and "&" is a letter like any
/// other. The toolkit makes the first "&" that is not the last letter a "_" and leaves the rest to us (Qt 6.4).
QString exportedMenuText(QString title)
{
    title.replace(QLatin1Char('_'), QStringLiteral("__"));
    if (const auto first = title.indexOf(QLatin1Char('&')); first >= 0)
        title.insert(first, QLatin1Char('&'));
    return title;
}

} // namespace cuebright
