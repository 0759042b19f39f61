#pragma once

#include "foundation/Seconds.h"

namespace cuebright {

/// The outcome of a launch's attempt to become the one instance.
enum class InstanceClaim {
    Granted, ///< this is the one instance
    HandedOver, ///< another instance has carried out the request
    Queued, ///< another instance does not answer; it gets the request when it resumes
    Unreachable, ///< another instance exists, but the request cannot be sent to it
    Unavailable, ///< this mechanism does not work here
};

/// The most that an instance that does not answer may delay a launch.
constexpr Seconds kReplyTimeout {1};

} // namespace cuebright
