#pragma once

#include <chrono>

namespace cuebright {

/// The outcome of a launch's attempt to be the one instance.
enum class InstanceClaim {
    Granted, ///< nobody else is, and nobody else can be any more
    HandedOver, ///< another one is, and has taken the request
    Queued, ///< another one is, and gets the request once it runs again
    Unreachable, ///< another one is, and cannot be told
    Unavailable, ///< this way of asking does not exist here
};

/// How long an instance that has stopped answering may hold up a launch.
constexpr std::chrono::milliseconds kInstanceReplyTimeout {1000};

} // namespace cuebright
