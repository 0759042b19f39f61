#include "platform/macos/MacAccessibility.h"
#include "platform/macos/MacAppearance.h"
#include "platform/macos/MacCaptureExclusion.h"
#include "platform/macos/MacClock.h"
#include "platform/macos/MacHotKeys.h"
#include "platform/macos/MacWindowSystem.h"
#include "platform/qt/QtAppearance.h"
#include "platform/qt/QtTopLevelWatch.h"
#include "platform/system/SystemServices.h"

namespace cuebright {

namespace {

/// Not compiled or run on a Mac yet.
class MacServices final : public SystemServices {
public:
    explicit MacServices(QtAppearance& appearance);

    Clock& clock() override { return m_clock; }
    Accessibility& accessibility() override { return m_accessibility; }
    Desktop desktop() override { return {m_captureExclusion, m_hotKeys, m_windowSystem}; }
    void start() override { }

private:
    MacClock m_clock;
    MacAccessibility m_accessibility;
    MacAppearance m_systemAppearance;
    MacCaptureExclusion m_captureExclusion;
    MacHotKeys m_hotKeys;
    MacWindowSystem m_windowSystem;
    QtTopLevelWatch m_topLevels;
    Subscription m_appearing;
    Subscription m_going;
    Subscription m_appearanceChange;
};

MacServices::MacServices(QtAppearance& appearance)
    : m_appearing(m_topLevels.appears.subscribe([this](auto window) { m_captureExclusion.windowAppears(window); }))
    , m_going(m_topLevels.goes.subscribe([this](auto window) { m_captureExclusion.windowGoes(window); }))
    , m_appearanceChange(m_systemAppearance.changed.subscribe(
          [this, &appearance] { appearance.setSystemIsDark(m_systemAppearance.isDark()); }))
{
    appearance.setSystemIsDark(m_systemAppearance.isDark());
}

} // namespace

std::unique_ptr<SystemServices> makeSystemServices(QtAppearance& appearance, MainQueue&)
{
    return std::make_unique<MacServices>(appearance);
}

} // namespace cuebright
