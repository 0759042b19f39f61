#include "platform/system/ProcessSetup.h"

#include "platform/linux/FontWarmUp.h"
#include "platform/linux/TerminationSignals.h"
#include "platform/linux/base/DesktopSession.h"

#include <QtGlobal>

#include <memory>
#include <optional>

namespace cuebright {

struct ProcessSetup::System {
    FontWarmUp fontWarmUp;
    std::optional<TerminationSignals> terminationSignals {};
    Subscription terminationSubscription {};
};

ProcessSetup::ProcessSetup()
{
    TerminationSignals::claim(); // before any thread
    m_system = std::make_unique<System>();
}

ProcessSetup::~ProcessSetup() = default;

/// A Wayland client may neither float nor place itself, so the way through XWayland comes first. Said in an option: the
/// environment is read by the fonts' thread, and inherited by programs that make their own choice.
std::vector<std::string> ProcessSetup::toolkitOptions()
{
    if (!DesktopSession::fromEnvironment().isWayland || qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        return {};
    return {"-platform", "xcb;wayland"};
}

void ProcessSetup::onApplicationCreated()
{
    m_system->terminationSignals.emplace();
    m_system->terminationSubscription =
        m_system->terminationSignals->requested.subscribe([this] { terminationRequested.notify(); });
}

} // namespace cuebright
