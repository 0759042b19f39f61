#include "platform/linux/SystemClock.h"
#include "platform/none/NoAccessibility.h"
#include "platform/none/NoCaptureExclusion.h"
#include "platform/none/NoHotKeys.h"
#include "platform/none/NoWindowSystem.h"
#include "platform/qt/SystemServices.h"

namespace cuebright {

namespace {

class LinuxServices final : public SystemServices {
public:
    Clock& clock() override { return m_clock; }
    Accessibility& accessibility() override { return m_accessibility; }
    Desktop desktop() override { return {m_captureExclusion, m_hotKeys, m_windowSystem}; }
    void start() override { }

private:
    SystemClock m_clock;
    NoAccessibility m_accessibility;
    NoCaptureExclusion m_captureExclusion;
    NoHotKeys m_hotKeys;
    NoWindowSystem m_windowSystem;
};

} // namespace

std::unique_ptr<SystemServices> makeSystemServices(QtAppearance&, MainQueue&)
{
    return std::make_unique<LinuxServices>();
}

} // namespace cuebright
