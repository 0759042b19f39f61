#include "platform/qt/SystemClock.h"

#include "platform/system/Uptime.h"

namespace cuebright {

Instant SystemClock::now() { return std::chrono::floor<Instant::duration>(std::chrono::system_clock::now()); }

Seconds SystemClock::uptime() { return systemUptime(); }

} // namespace cuebright
