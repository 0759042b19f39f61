#include "platform/linux/Session.h"
#include "platform/linux/SystemClock.h"
#include "platform/linux/X11Compositor.h"
#include "platform/linux/X11HotKeys.h"
#include "platform/linux/X11WindowSystem.h"
#include "platform/none/NoAccessibility.h"
#include "platform/none/NoCaptureExclusion.h"
#include "platform/none/NoHotKeys.h"
#include "platform/none/NoWindowSystem.h"
#include "platform/qt/SystemServices.h"

namespace cuebright {

namespace {

std::unique_ptr<WindowSystem> makeWindowSystem(const X11Connection* x11)
{
    if (x11)
        return std::make_unique<X11WindowSystem>(*x11);
    return std::make_unique<NoWindowSystem>();
}

/// In a Wayland session a grab would work only while a window of XWayland has the keyboard.
std::unique_ptr<HotKeys> makeHotKeys(const Session& session, const X11Connection* x11)
{
    if (x11 && !session.isWayland)
        return std::make_unique<X11HotKeys>(*x11);
    return std::make_unique<NoHotKeys>();
}

class LinuxServices final : public SystemServices {
public:
    Clock& clock() override { return m_clock; }
    Accessibility& accessibility() override { return m_accessibility; }
    Desktop desktop() override { return {m_captureExclusion, *m_hotKeys, *m_windowSystem}; }
    void start() override { }

private:
    const Session m_session = Session::fromEnvironment();
    const std::unique_ptr<X11Connection> m_x11 = X11Connection::ofApplication();
    SystemClock m_clock;
    NoAccessibility m_accessibility;
    NoCaptureExclusion m_captureExclusion;
    const std::unique_ptr<HotKeys> m_hotKeys = makeHotKeys(m_session, m_x11.get());
    const std::unique_ptr<WindowSystem> m_windowSystem = makeWindowSystem(m_x11.get());
};

} // namespace

std::unique_ptr<SystemServices> makeSystemServices(QtAppearance&, MainQueue&)
{
    return std::make_unique<LinuxServices>();
}

} // namespace cuebright
