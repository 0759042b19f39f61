#pragma once

#include "foundation/Instant.h"
#include "foundation/Seconds.h"

namespace cuebright {

/// The current time.
class Clock {
public:
    virtual ~Clock() = default;

    /// The date and time of day; jumps when the system clock is set.
    [[nodiscard]] virtual Instant now() = 0;

    /// Time since an arbitrary start. Counts while the system is suspended and never jumps.
    [[nodiscard]] virtual Seconds uptime() = 0;
};

} // namespace cuebright
