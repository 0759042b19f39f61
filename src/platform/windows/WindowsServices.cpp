#include "platform/fallback/NoWindowSystem.h"
#include "platform/qt/QtAppearance.h"
#include "platform/qt/QtWindowEvents.h"
#include "platform/system/SystemServices.h"
#include "platform/windows/MessageWindow.h"
#include "platform/windows/Personalization.h"
#include "platform/windows/Win32DisplayAffinity.h"
#include "platform/windows/WindowsAccessibility.h"
#include "platform/windows/WindowsHotKeys.h"
#include "platform/windows/capture/WindowsCaptureExclusion.h"

namespace cuebright {

// Not run on Windows yet, nor compiled with Qt for Windows. No window system is needed: a topmost window is above
// full-screen ones, and blur is not implemented.
struct SystemServices::System {
    System(QtAppearance& appearance, QtWindowEvents& windowEvents)
        : appears(windowEvents.topLevelAppears.subscribe([this](auto id) { captureExclusion.windowAppears(id); }))
        , goes(windowEvents.topLevelGoes.subscribe([this](auto id) { captureExclusion.windowGoes(id); }))
        , session(messages.sessionChanged.subscribe([this] { captureExclusion.sessionChanged(); }))
        , settings(messages.settingsChanged.subscribe([&appearance] { appearance.setSystemIsDark(appsAreDark()); }))
    {
        appearance.setSystemIsDark(appsAreDark());
    }

    MessageWindow messages;
    WindowsAccessibility accessibility {messages};
    Win32DisplayAffinity displayAffinity;
    WindowsCaptureExclusion captureExclusion {displayAffinity};
    WindowsHotKeys hotKeys {messages};
    NoWindowSystem windowSystem;
    Subscription appears;
    Subscription goes;
    Subscription session;
    Subscription settings;
};

SystemServices::SystemServices(QtAppearance& appearance, QtWindowEvents& windowEvents, MainQueue&)
    : m_system(std::make_unique<System>(appearance, windowEvents))
{
}

SystemServices::~SystemServices() = default;

Accessibility& SystemServices::accessibility() { return m_system->accessibility; }

Desktop SystemServices::desktop() { return {m_system->captureExclusion, m_system->hotKeys, m_system->windowSystem}; }

void SystemServices::start() { m_system->messages.watchSession(); }

} // namespace cuebright
