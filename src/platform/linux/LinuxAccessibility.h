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

/// The user's wishes as the settings portal tells them. Until it has told or has been silent for three seconds nothing
/// moves. No desktop here has a wish for less transparency: without a compositor there is none to be had.
class LinuxAccessibility final : public Accessibility {
public:
    /// `systemIsDark` hears of each change of the desktop's light or dark look; nothing: it has no preference.
    LinuxAccessibility(MainQueue& mainQueue, std::function<bool()> hasCompositor,
        std::function<void(std::optional<bool>)> systemIsDark);
    ~LinuxAccessibility() override;

    /// Begins to ask; settles at once where there is no bus.
    void start(const QDBusConnection& sessionBus);

    /// Looks again whether there is a compositor.
    void updateCompositor();

    bool reduceMotion() override { return m_wishes.reduceMotion; }
    bool reduceTransparency() override { return m_wishes.reduceTransparency; }
    bool increaseContrast() override { return m_wishes.increaseContrast; }

private:
    struct Wishes {
        bool reduceMotion = true;
        bool reduceTransparency = false;
        bool increaseContrast = false;

        bool operator==(const Wishes&) const = default;
    };

    void settle(const DesktopSettings& settings);
    void become(const Wishes& wishes);

    MainQueue& m_mainQueue;
    std::function<bool()> m_hasCompositor;
    std::function<void(std::optional<bool>)> m_systemIsDark;
    Wishes m_wishes;
    std::optional<bool> m_isDark;
    std::unique_ptr<SettingsPortal> m_portal;
    PendingTask m_timeout;
};

} // namespace cuebright
