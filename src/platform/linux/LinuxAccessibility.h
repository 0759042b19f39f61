#pragma once

#include "platform/Accessibility.h"
#include "platform/MainQueue.h"
#include "platform/linux/portal/DesktopSettings.h"

#include <functional>
#include <memory>
#include <optional>

class QDBusConnection;

namespace cuebright {

class SettingsPortal;

/// Accessibility settings from the settings portal. Motion is reduced until the portal answers or 3 s pass. The portal
/// has no setting for transparency: it is reduced where no compositor runs.
class LinuxAccessibility final : public Accessibility {
public:
    /// `systemIsDark` is called with each change of the desktop's colour scheme; `nullopt` if the desktop
    /// states no preference.
    LinuxAccessibility(MainQueue& mainQueue, std::function<bool()> hasCompositor,
        std::function<void(std::optional<bool>)> systemIsDark);
    ~LinuxAccessibility() override;

    /// Asks the portal. Call once.
    void start(const QDBusConnection& sessionBus);

    /// Calls `hasCompositor` again.
    void updateCompositor();

    bool reduceMotion() override { return m_settings.reduceMotion; }
    bool reduceTransparency() override { return m_settings.reduceTransparency; }
    bool increaseContrast() override { return m_settings.increaseContrast; }

private:
    struct Settings {
        bool reduceMotion = true;
        bool reduceTransparency = false;
        bool increaseContrast = false;

        bool operator==(const Settings&) const = default;
    };

    void apply(const DesktopSettings& desktop);
    void set(const Settings& settings);

    MainQueue& m_mainQueue;
    std::function<bool()> m_hasCompositor;
    std::function<void(std::optional<bool>)> m_systemIsDark;
    Settings m_settings;
    std::optional<bool> m_isDark;
    std::unique_ptr<SettingsPortal> m_portal;
    PendingTask m_timeout;
};

} // namespace cuebright
