#include "platform/macos/MacAccessibility.h"
#include "platform/macos/MacAppearance.h"
#include "platform/macos/MacCaptureExclusion.h"
#include "platform/macos/MacHotKeys.h"
#include "platform/macos/MacWindowSystem.h"
#include "platform/qt/QtAppearance.h"
#include "platform/qt/QtWindowEvents.h"
#include "platform/system/SystemServices.h"

namespace cuebright {

// Not compiled or run on a Mac yet.
struct SystemServices::System {
    System(QtAppearance& appearance, QtWindowEvents& windowEvents)
        : appears(windowEvents.topLevelAppears.subscribe([this](auto id) { captureExclusion.windowAppears(id); }))
        , goes(windowEvents.topLevelGoes.subscribe([this](auto id) { captureExclusion.windowGoes(id); }))
        , appearanceChange(systemAppearance.changed.subscribe(
              [this, &appearance] { appearance.setSystemIsDark(systemAppearance.isDark()); }))
    {
        appearance.setSystemIsDark(systemAppearance.isDark());
    }

    MacAccessibility accessibility;
    MacAppearance systemAppearance;
    MacCaptureExclusion captureExclusion;
    MacHotKeys hotKeys;
    MacWindowSystem windowSystem;
    Subscription appears;
    Subscription goes;
    Subscription appearanceChange;
};

SystemServices::SystemServices(QtAppearance& appearance, QtWindowEvents& windowEvents, MainQueue&)
    : m_system(std::make_unique<System>(appearance, windowEvents))
{
}

SystemServices::~SystemServices() = default;

Accessibility& SystemServices::accessibility() { return m_system->accessibility; }

Desktop SystemServices::desktop() { return {m_system->captureExclusion, m_system->hotKeys, m_system->windowSystem}; }

void SystemServices::start() { }

} // namespace cuebright
