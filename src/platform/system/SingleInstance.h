#pragma once

#include "platform/RemoteRequest.h"

#include <functional>
#include <memory>
#include <optional>

namespace cuebright {

/// Decides which of a user's launches is the one that runs; every other one hands over to it and ends. Neither a crash
/// nor a hang of the one that runs keeps a launch waiting. Defined once for each system.
///
/// Needs nothing of the toolkit.
class SingleInstance final {
public:
    SingleInstance();
    ~SingleInstance();

    /// What `main` returns where another instance has the request or will get it; nothing where this is the one.
    [[nodiscard]] std::optional<int> exitStatus() const;

    /// Call once, as soon as the requests can be carried out. Those that have been waiting are passed on before this
    /// returns: they are what the program was started for, so a toggle among them only shows the panel.
    void deliver(std::function<void(const RemoteRequest&)> perform);

private:
    struct System;
    std::unique_ptr<System> m_system;
};

} // namespace cuebright
