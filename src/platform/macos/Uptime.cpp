#include "platform/system/Uptime.h"

#include <mach/mach_time.h>

namespace cuebright {

// Not compiled or run on a Mac yet.
Seconds systemUptime()
{
    mach_timebase_info_data_t ratio {};
    mach_timebase_info(&ratio);
    return Seconds(1e-9 * static_cast<double>(mach_continuous_time()) * ratio.numer / ratio.denom);
}

} // namespace cuebright
