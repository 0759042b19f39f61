#pragma once

#include "foundation/Instant.h"
#include "foundation/Seconds.h"

namespace cuebright {

/// Where time comes from.
class Clock {
public:
    virtual ~Clock() = default;

    /// The date and time of day; jumps when somebody sets the system's clock.
    [[nodiscard]] virtual Instant now() = 0;

    /// Time since an arbitrary start. Counts while the system is suspended and never jumps.
    [[nodiscard]] virtual Seconds uptime() = 0;
};

} // namespace cuebright
