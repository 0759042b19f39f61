#pragma once

#include <cstddef>
#include <optional>

namespace cuebright::bench {

/// What this process keeps in memory; absent where the system does not say (anything but Linux).
struct ProcessMemory {
    std::size_t residentKib;
    std::size_t peakKib; ///< the highest so far
};
[[nodiscard]] std::optional<ProcessMemory> processMemory();

} // namespace cuebright::bench
