#pragma once

#include "foundation/Seconds.h"

namespace cuebright {

/// What `Clock::uptime` returns. Defined once for each system: the standard library's steady clock need not count while
/// the system is suspended.
[[nodiscard]] Seconds systemUptime();

} // namespace cuebright
