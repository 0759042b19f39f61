#include "platform/qt/ProcessSetup.h"

#include "platform/linux/FontWarmUp.h"
#include "platform/linux/Session.h"
#include "platform/linux/TerminationSignals.h"

#include <QtGlobal>

#include <memory>
#include <optional>

namespace cuebright {

namespace {

constexpr const char* kWindowSystemVariable = "QT_QPA_PLATFORM";

/// A Wayland client may neither float nor place itself, so the way through XWayland comes first.
bool preferXWayland()
{
    if (!Session::fromEnvironment().isWayland || qEnvironmentVariableIsSet(kWindowSystemVariable))
        return false;
    return qputenv(kWindowSystemVariable, "xcb;wayland");
}

} // namespace

struct ProcessSetup::System {
    FontWarmUp fontWarmUp;
    bool choseWindowSystem = preferXWayland();
    std::optional<TerminationSignals> terminationSignals {};
    Subscription terminationSubscription {};
};

ProcessSetup::ProcessSetup()
{
    TerminationSignals::claim(); // before any thread
    m_system = std::make_unique<System>();
}

ProcessSetup::~ProcessSetup() = default;

void ProcessSetup::applicationIsThere()
{
    if (m_system->choseWindowSystem)
        qunsetenv(kWindowSystemVariable); // programs started from here make their own choice
    m_system->terminationSignals.emplace();
    m_system->terminationSubscription =
        m_system->terminationSignals->requested.subscribe([this] { terminationRequested.notify(); });
}

} // namespace cuebright
