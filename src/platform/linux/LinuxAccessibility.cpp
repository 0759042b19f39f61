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
    , m_settings {.reduceTransparency = !m_hasCompositor()}
{
}

LinuxAccessibility::~LinuxAccessibility() = default;

void LinuxAccessibility::start(const QDBusConnection& sessionBus)
{
    if (!sessionBus.isConnected()) {
        apply({});
        return;
    }
    m_timeout = m_mainQueue.after(kReplyTimeout, [this] { apply({}); });
    m_portal = std::make_unique<SettingsPortal>(sessionBus, [this](const DesktopSettings& desktop) { apply(desktop); });
}

void LinuxAccessibility::updateCompositor()
{
    auto settings = m_settings;
    settings.reduceTransparency = !m_hasCompositor();
    set(settings);
}

void LinuxAccessibility::apply(const DesktopSettings& desktop)
{
    m_timeout.cancel();
    if (std::exchange(m_isDark, desktop.isDark()) != m_isDark)
        m_systemIsDark(m_isDark);
    set({desktop.reduceMotion(), m_settings.reduceTransparency, desktop.increaseContrast()});
}

void LinuxAccessibility::set(const Settings& settings)
{
    if (std::exchange(m_settings, settings) != settings)
        changed.notify();
}

} // namespace cuebright
