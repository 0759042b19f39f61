#pragma once

#include <chrono>

namespace cuebright {

/// A length of time in seconds.
using Seconds = std::chrono::duration<double>;

} // namespace cuebright
