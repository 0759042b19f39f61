#include "platform/system/Uptime.h"

#include <time.h>

namespace cuebright {

Seconds systemUptime()
{
    timespec time {};
    clock_gettime(CLOCK_BOOTTIME, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

} // namespace cuebright
