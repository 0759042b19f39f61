#include "platform/system/Uptime.h"

#include "platform/windows/Win32.h"

namespace cuebright {

// In steps of 10 to 16 ms. Not run on Windows yet.
Seconds systemUptime() { return std::chrono::milliseconds(GetTickCount64()); }

} // namespace cuebright
