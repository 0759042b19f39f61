#pragma once

#include "platform/Clock.h"

namespace cuebright {

/// The system's clocks.
class SystemClock final : public Clock {
public:
    Instant now() override;
    Seconds uptime() override;
};

} // namespace cuebright
