#pragma once

#include "platform/Clock.h"

namespace cuebright {

/// The system's real-time clock, and the one that runs on through sleep and hibernation (GetTickCount64, in steps of 10
/// to 16 ms). Compiled for Windows, not run on it yet.
class WindowsClock final : public Clock {
public:
    Instant now() override;
    Seconds uptime() override;
};

} // namespace cuebright
