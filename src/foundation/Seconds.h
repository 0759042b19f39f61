#pragma once

#include <chrono>

namespace cuebright {

/// A duration in seconds.
using Seconds = std::chrono::duration<double>;

} // namespace cuebright
