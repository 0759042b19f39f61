#include "platform/linux/LinuxAccessibility.h"

#include "platform/linux/portal/SettingsPortal.h"

#include <utility>

namespace cuebright {

namespace {

constexpr Seconds kReplyTimeout {3};

} // namespace

LinuxAccessibility::LinuxAccessibility(
    MainQueue& mainQueue, std::function<bool()> hasCompositor, std::function<void(std::optional<bool>)> systemIsDark)
    : m_mainQueue(mainQueue)
    , m_hasCompositor(std::move(hasCompositor))
    , m_systemIsDark(std::move(systemIsDark))
    , m_wishes {.reduceTransparency = !m_hasCompositor()}
{
}

LinuxAccessibility::~LinuxAccessibility() = default;

void LinuxAccessibility::start(const QDBusConnection& sessionBus)
{
    if (!sessionBus.isConnected()) {
        settle({});
        return;
    }
    m_timeout = m_mainQueue.after(kReplyTimeout, [this] { settle({}); });
    m_portal =
        std::make_unique<SettingsPortal>(sessionBus, [this](const DesktopSettings& settings) { settle(settings); });
}

void LinuxAccessibility::updateCompositor()
{
    auto wishes = m_wishes;
    wishes.reduceTransparency = !m_hasCompositor();
    become(wishes);
}

void LinuxAccessibility::settle(const DesktopSettings& settings)
{
    m_timeout.cancel();
    if (std::exchange(m_isDark, settings.isDark()) != m_isDark)
        m_systemIsDark(m_isDark);
    become({settings.reduceMotion(), m_wishes.reduceTransparency, settings.increaseContrast()});
}

void LinuxAccessibility::become(const Wishes& wishes)
{
    if (std::exchange(m_wishes, wishes) != wishes)
        changed.notify();
}

} // namespace cuebright
