#include "platform/linux/SystemClock.h"

#include <time.h>

namespace cuebright {

Instant SystemClock::now() { return std::chrono::floor<Instant::duration>(std::chrono::system_clock::now()); }

Seconds SystemClock::uptime()
{
    timespec time {};
    clock_gettime(CLOCK_BOOTTIME, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

} // namespace cuebright
