#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace cuebright::bench {

/// The upper one of the middle two, where there are two. `values` is not empty.
inline double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

} // namespace cuebright::bench
