#include "platform/fallback/NoHotKeys.h"
#include "platform/fallback/NoWindowSystem.h"
#include "platform/linux/LinuxAccessibility.h"
#include "platform/linux/SystemClock.h"
#include "platform/linux/base/DesktopSession.h"
#include "platform/linux/capture/SessionCaptureExclusion.h"
#include "platform/linux/portal/PortalHotKeys.h"
#include "platform/linux/x11/X11Compositor.h"
#include "platform/linux/x11/X11HotKeys.h"
#include "platform/linux/x11/X11WindowSystem.h"
#include "platform/qt/QtAppearance.h"
#include "platform/system/SystemServices.h"

#include <optional>

#include <malloc.h>

namespace cuebright {

namespace {

/// What an X server gives, XWayland included.
struct X11Services {
    X11Services(std::unique_ptr<X11Connection> x11Connection, MainQueue& mainQueue)
        : connection(std::move(x11Connection))
        , compositor(*connection)
        , windowSystem(*connection, mainQueue)
        , hotKeys(*connection)
    {
    }

    std::unique_ptr<X11Connection> connection;
    X11Compositor compositor;
    X11WindowSystem windowSystem;
    X11HotKeys hotKeys;
};

std::unique_ptr<X11Services> connectToX11(MainQueue& mainQueue)
{
    auto connection = X11Connection::ofApplication();
    return connection ? std::make_unique<X11Services>(std::move(connection), mainQueue) : nullptr;
}

QDBusConnection connectForHotKeys()
{
    return QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("hot keys"));
}

constexpr Seconds kSettled {0.5}; // after the first frame

/// Starting needs more than running does; what it left free goes back to the system.
void giveBackMemory()
{
#ifdef __GLIBC__
    ::malloc_trim(0);
#endif
}

class LinuxServices final : public SystemServices {
public:
    LinuxServices(QtAppearance& appearance, MainQueue& mainQueue)
        : m_mainQueue(mainQueue)
        , m_x11(connectToX11(mainQueue))
        , m_accessibility(
              mainQueue, [this] { return hasCompositor(); },
              [&appearance](std::optional<bool> isDark) { appearance.setSystemIsDark(isDark); })
        , m_captureExclusion(startCaptureExclusion(m_session, mainQueue)) // before the first window
    {
        if (m_session.isWayland)
            m_portalHotKeys.emplace(connectForHotKeys);
        if (m_x11)
            m_compositorSubscription =
                m_x11->compositor.changed.subscribe([this] { m_accessibility.compositorMayHaveChanged(); });
    }

    Clock& clock() override { return m_clock; }
    Accessibility& accessibility() override { return m_accessibility; }
    Desktop desktop() override { return {*m_captureExclusion, hotKeys(), windowSystem()}; }
    void start() override
    {
        m_accessibility.start(QDBusConnection::sessionBus());
        if (m_portalHotKeys)
            m_portalHotKeys->start();
        m_memoryRelease = m_mainQueue.after(kSettled, giveBackMemory);
    }

private:
    /// A Wayland compositor is one by its nature.
    bool hasCompositor() const { return m_session.isWayland || !m_x11 || m_x11->compositor.isRunning(); }

    /// A grab in a Wayland session would be deaf while a Wayland window has the keyboard.
    HotKeys& hotKeys()
    {
        if (m_portalHotKeys)
            return *m_portalHotKeys;
        if (m_x11)
            return m_x11->hotKeys;
        return m_noHotKeys;
    }

    WindowSystem& windowSystem()
    {
        if (m_x11)
            return m_x11->windowSystem;
        return m_noWindowSystem;
    }

    MainQueue& m_mainQueue;
    const DesktopSession m_session = DesktopSession::fromEnvironment();
    const std::unique_ptr<X11Services> m_x11;
    SystemClock m_clock;
    LinuxAccessibility m_accessibility;
    std::unique_ptr<CaptureExclusion> m_captureExclusion;
    std::optional<PortalHotKeys> m_portalHotKeys;
    NoHotKeys m_noHotKeys;
    NoWindowSystem m_noWindowSystem;
    PendingTask m_memoryRelease;
    Subscription m_compositorSubscription;
};

} // namespace

std::unique_ptr<SystemServices> makeSystemServices(QtAppearance& appearance, MainQueue& mainQueue)
{
    return std::make_unique<LinuxServices>(appearance, mainQueue);
}

} // namespace cuebright
