#pragma once

#include "platform/RemoteRequest.h"
#include "platform/linux/instance/InstanceClaim.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

class QSocketNotifier;
struct DBusConnection;

namespace cuebright {

/// One instance for each session, by the program's name on the message bus, and what others ask of it there.
///
/// On a connection of its own, by libdbus and not through the toolkit, which could not be asked before its start. Calls
/// wait on the connection until `deliver`.
class ApplicationBusName final {
public:
    /// What a launch tells the running instance: keys and texts.
    using PlatformData = std::vector<std::pair<const char*, std::string>>;

    /// Of the user's session; nothing where there is none. Starts none.
    [[nodiscard]] static std::optional<std::string> sessionBus();

    explicit ApplicationBusName(std::optional<std::string> busAddress = sessionBus());
    ~ApplicationBusName();
    ApplicationBusName(const ApplicationBusName&) = delete;
    ApplicationBusName& operator=(const ApplicationBusName&) = delete;

    /// Takes the name, or asks its owner to activate itself.
    [[nodiscard]] InstanceClaim claim(
        const PlatformData& data, std::chrono::milliseconds timeout = kInstanceReplyTimeout);

    /// Passes on what is asked for, from now on from the event loop. Does nothing where the claim was not granted.
    void deliver(std::function<void(const RemoteRequest&)> perform);

private:
    struct Bus;
    void read();

    const std::optional<std::string> m_address;
    std::unique_ptr<Bus> m_bus;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace cuebright
