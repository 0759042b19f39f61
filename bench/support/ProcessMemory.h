#pragma once

#include <cstddef>
#include <optional>

namespace cuebright::bench {

/// The memory of this process; absent on systems other than Linux.
struct ProcessMemory {
    std::size_t residentKib;
    std::size_t peakKib; ///< the highest so far
};
[[nodiscard]] std::optional<ProcessMemory> processMemory();

} // namespace cuebright::bench
