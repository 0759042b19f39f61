#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace cuebright::bench {

/// Of two middle values the upper one. `values` must not be empty.
inline double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

} // namespace cuebright::bench
