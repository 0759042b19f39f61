#include "platform/windows/WindowsClock.h"

#include "platform/windows/Win32.h"

namespace cuebright {

Instant WindowsClock::now() { return std::chrono::floor<Instant::duration>(std::chrono::system_clock::now()); }

Seconds WindowsClock::uptime() { return std::chrono::milliseconds(GetTickCount64()); }

} // namespace cuebright
