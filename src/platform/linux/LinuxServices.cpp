#include "platform/fallback/NoHotKeys.h"
#include "platform/fallback/NoWindowSystem.h"
#include "platform/linux/LinuxAccessibility.h"
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

/// On an X server, XWayland included.
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

constexpr Seconds kTrimDelay {0.5}; // after the first frame

/// Returns the memory that only the start needed to the system.
void trimMemory()
{
#ifdef __GLIBC__
    ::malloc_trim(0);
#endif
}

} // namespace

struct SystemServices::System {
    System(QtAppearance& appearance, MainQueue& queue)
        : mainQueue(queue)
        , x11(connectToX11(queue))
        , accessibility(
              queue, [this] { return hasCompositor(); },
              [&appearance](std::optional<bool> isDark) { appearance.setSystemIsDark(isDark); })
        , captureExclusion(startCaptureExclusion(session, queue)) // before the first window
    {
        if (session.isWayland)
            portalHotKeys.emplace(connectForHotKeys);
        if (x11)
            compositorSubscription = x11->compositor.changed.subscribe([this] { accessibility.updateCompositor(); });
    }

    /// A Wayland session always has one.
    bool hasCompositor() const { return session.isWayland || !x11 || x11->compositor.isRunning(); }

    /// A key grabbed through XWayland would not arrive while a Wayland window has focus.
    HotKeys& hotKeys()
    {
        if (portalHotKeys)
            return *portalHotKeys;
        if (x11)
            return x11->hotKeys;
        return noHotKeys;
    }

    WindowSystem& windowSystem()
    {
        if (x11)
            return x11->windowSystem;
        return noWindowSystem;
    }

    MainQueue& mainQueue;
    const DesktopSession session = DesktopSession::fromEnvironment();
    const std::unique_ptr<X11Services> x11;
    LinuxAccessibility accessibility;
    const std::unique_ptr<CaptureExclusion> captureExclusion;
    std::optional<PortalHotKeys> portalHotKeys;
    NoHotKeys noHotKeys;
    NoWindowSystem noWindowSystem;
    PendingTask memoryTrim;
    Subscription compositorSubscription;
};

SystemServices::SystemServices(QtAppearance& appearance, QtWindowEvents&, MainQueue& mainQueue)
    : m_system(std::make_unique<System>(appearance, mainQueue))
{
}

SystemServices::~SystemServices() = default;

Accessibility& SystemServices::accessibility() { return m_system->accessibility; }

Desktop SystemServices::desktop()
{
    return {*m_system->captureExclusion, m_system->hotKeys(), m_system->windowSystem()};
}

void SystemServices::start()
{
    m_system->accessibility.start(QDBusConnection::sessionBus());
    if (m_system->portalHotKeys)
        m_system->portalHotKeys->start();
    m_system->memoryTrim = m_system->mainQueue.after(kTrimDelay, trimMemory);
}

} // namespace cuebright
