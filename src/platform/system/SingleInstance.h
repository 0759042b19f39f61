#pragma once

#include "platform/RemoteRequest.h"

#include <functional>
#include <memory>
#include <optional>

namespace cuebright {

/// Lets one instance run for each user: a further launch passes its request on to that one and ends. Neither a crash
/// nor a hang of the running instance delays a launch by more than about a second. Defined once for each system.
///
/// Both claims return what `main` has to return where another instance runs, and nothing where this one goes on.
class SingleInstance final {
public:
    SingleInstance();
    ~SingleInstance();

    /// Decides between most launches, without a Qt application object and its start-up time.
    [[nodiscard]] std::optional<int> claimLock();

    /// Decides where the lock cannot. Call it with an application object, before the first window.
    [[nodiscard]] std::optional<int> claimName();

    /// Call it once, as soon as requests can be carried out and before the event loop runs. Those that have been
    /// waiting are passed on before this returns: they are what the program was started for, so a toggle among them
    /// only shows the panel.
    void deliver(std::function<void(const RemoteRequest&)> perform);

private:
    struct System;
    std::unique_ptr<System> m_system;
};

} // namespace cuebright
