#pragma once

#include "platform/Clock.h"

namespace cuebright {

/// The system's real-time clock, and the one that runs on through suspend (CLOCK_BOOTTIME).
class SystemClock final : public Clock {
public:
    Instant now() override;
    Seconds uptime() override;
};

} // namespace cuebright
