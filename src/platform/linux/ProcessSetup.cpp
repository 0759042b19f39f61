#include "platform/system/ProcessSetup.h"

#include "platform/linux/FontWarmUp.h"
#include "platform/linux/TerminationSignals.h"
#include "platform/linux/base/DesktopSession.h"

#include <QByteArray>
#include <QtGlobal>

#include <memory>
#include <optional>

namespace cuebright {

struct ProcessSetup::System {
    FontWarmUp fontWarmUp;
    std::optional<TerminationSignals> terminationSignals {};
    Subscription terminationSubscription {};
};

namespace {

/// Where the session has no bus, libdbus would start one that outlives the program ("autolaunch").
void forbidStartingBus()
{
    std::error_code ignored;
    const auto address = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    const auto socket = DesktopSession::fromEnvironment().runtimeDirectory / "bus"; // the default address
    const bool hasBus = address.isEmpty() ? socket.is_absolute() && std::filesystem::is_socket(socket, ignored)
                                          : !address.startsWith("autolaunch:");
    if (!hasBus)
        qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
}

} // namespace

ProcessSetup::ProcessSetup()
{
    forbidStartingBus();
    TerminationSignals::claim(); // before any thread
    m_system = std::make_unique<System>();
}

ProcessSetup::~ProcessSetup() = default;

/// XWayland first, because a Wayland client can neither stay on top nor position itself. By an option, because the font
/// thread reads the environment and child processes inherit it.
std::vector<std::string> ProcessSetup::qtOptions()
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
