#pragma once

#include "foundation/Signal.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace cuebright {

/// Hyprland's two sockets: one for requests, one on which it tells what happens. Nothing waits.
class HyprlandIpc {
public:
    /// Nothing where Hyprland did not answer, or not to the end.
    using Reply = std::function<void(std::optional<std::string>)>;

    virtual ~HyprlandIpc() = default;

    /// Begins to listen for what happens. Call once.
    virtual void start() = 0;

    /// Sends `[flags]/command`. `reply` runs later on the main thread, once, unless the request is abandoned.
    virtual void request(std::string_view request, Reply reply) = 0;

    /// Ends all requests under way: none of their replies comes any more.
    virtual void abandonRequests() = 0;

    /// The configuration was read again, and the rules that were sent are gone.
    Signal<> configReloaded;
    /// A window has come, of whatever program.
    Signal<> windowOpened;
    /// From now on nothing is heard any more of what happens.
    Signal<> lost;
};

} // namespace cuebright
