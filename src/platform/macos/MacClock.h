#pragma once

#include "platform/Clock.h"

namespace cuebright {

/// The system's real-time clock, and the one that runs on through sleep (mach_continuous_time). Not compiled or run on
/// a Mac yet.
class MacClock final : public Clock {
public:
    MacClock();

    Instant now() override;
    Seconds uptime() override;

private:
    double m_secondsPerTick;
};

} // namespace cuebright
