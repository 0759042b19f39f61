#include "platform/macos/MacClock.h"

#include <mach/mach_time.h>

namespace cuebright {

MacClock::MacClock()
{
    mach_timebase_info_data_t ratio {};
    mach_timebase_info(&ratio);
    m_secondsPerTick = 1e-9 * ratio.numer / ratio.denom;
}

Instant MacClock::now() { return std::chrono::floor<Instant::duration>(std::chrono::system_clock::now()); }

Seconds MacClock::uptime() { return Seconds(static_cast<double>(mach_continuous_time()) * m_secondsPerTick); }

} // namespace cuebright
