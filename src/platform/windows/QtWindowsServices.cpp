#include "platform/fallback/NoWindowSystem.h"
#include "platform/qt/QtAppearance.h"
#include "platform/qt/QtTopLevelWatch.h"
#include "platform/system/SystemServices.h"
#include "platform/windows/MessageWindow.h"
#include "platform/windows/Personalization.h"
#include "platform/windows/Win32DisplayAffinity.h"
#include "platform/windows/WindowsAccessibility.h"
#include "platform/windows/WindowsClock.h"
#include "platform/windows/WindowsHotKeys.h"
#include "platform/windows/capture/WindowsCaptureExclusion.h"

namespace cuebright {

namespace {

/// Not run on a Windows machine yet, nor built with Qt for Windows. Of the window system nothing is asked: a topmost
/// window lies above full-screen ones already, and glass is left out.
class WindowsServices final : public SystemServices {
public:
    explicit WindowsServices(QtAppearance& appearance);

    Clock& clock() override { return m_clock; }
    Accessibility& accessibility() override { return m_accessibility; }
    Desktop desktop() override { return {m_captureExclusion, m_hotKeys, m_windowSystem}; }
    void start() override { m_messages.watchSession(); }

private:
    MessageWindow m_messages;
    WindowsClock m_clock;
    WindowsAccessibility m_accessibility {m_messages};
    Win32DisplayAffinity m_displayAffinity;
    WindowsCaptureExclusion m_captureExclusion {m_displayAffinity};
    WindowsHotKeys m_hotKeys {m_messages};
    NoWindowSystem m_windowSystem;
    QtTopLevelWatch m_topLevels;
    Subscription m_appearing;
    Subscription m_going;
    Subscription m_session;
    Subscription m_settings;
};

WindowsServices::WindowsServices(QtAppearance& appearance)
    : m_appearing(m_topLevels.appears.subscribe([this](auto window) { m_captureExclusion.windowAppears(window); }))
    , m_going(m_topLevels.goes.subscribe([this](auto window) { m_captureExclusion.windowGoes(window); }))
    , m_session(m_messages.sessionChanged.subscribe([this] { m_captureExclusion.sessionChanged(); }))
    , m_settings(m_messages.settingsChanged.subscribe([&appearance] { appearance.setSystemIsDark(appsAreDark()); }))
{
    appearance.setSystemIsDark(appsAreDark());
}

} // namespace

std::unique_ptr<SystemServices> makeSystemServices(QtAppearance& appearance, MainQueue&)
{
    return std::make_unique<WindowsServices>(appearance);
}

} // namespace cuebright
