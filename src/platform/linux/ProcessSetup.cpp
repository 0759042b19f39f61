#include "platform/system/ProcessSetup.h"

#include "platform/linux/FontWarmUp.h"
#include "platform/linux/TerminationSignals.h"
#include "platform/linux/base/DesktopSession.h"

#include <QByteArray>
#include <QDBusConnection>
#include <QtGlobal>

#include <memory>
#include <optional>

namespace cuebright {

struct ProcessSetup::System {
    std::optional<FontWarmUp> fontWarmUp {std::in_place};
    std::optional<TerminationSignals> terminationSignals {};
    Subscription terminationSubscription {};
};

namespace {

constexpr auto kBusAddress = "DBUS_SESSION_BUS_ADDRESS";
constexpr auto kNoBus = "disabled:";

/// Where the session has no bus, libdbus would start one that outlives the program ("autolaunch").
void forbidStartingBus()
{
    std::error_code ignored;
    const auto address = qgetenv(kBusAddress);
    const auto socket = DesktopSession::fromEnvironment().runtimeDirectory / "bus"; // the default address
    const bool hasBus = address.isEmpty() ? socket.is_absolute() && std::filesystem::is_socket(socket, ignored)
                                          : !address.startsWith("autolaunch:");
    if (!hasBus)
        qputenv(kBusAddress, kNoBus);
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
    if (qgetenv(kBusAddress) == kNoBus) { // not for the programs that links start
        m_system->fontWarmUp.reset(); // that thread reads the environment
        static_cast<void>(QDBusConnection::sessionBus()); // libdbus reads the address once
        qunsetenv(kBusAddress);
    }
    m_system->terminationSignals.emplace();
    m_system->terminationSubscription =
        m_system->terminationSignals->requested.subscribe([this] { terminationRequested.notify(); });
}

} // namespace cuebright
