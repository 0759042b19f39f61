#pragma once

#include "Rules.h"

#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace cuebright::soak {

/// The same numbers from the same seed on every machine.
class Random {
public:
    explicit Random(std::uint64_t seed)
        : m_engine(seed)
    {
    }
    /// From 0 to `limit` - 1.
    int below(int limit) { return static_cast<int>(m_engine() % static_cast<std::uint64_t>(limit)); }
    bool oneIn(int chances) { return below(chances) == 0; }
    template <typename List> const auto& from(const List& list)
    {
        return list[static_cast<std::size_t>(below(static_cast<int>(std::size(list))))];
    }
    std::string oddText(int mostPieces);

private:
    std::mt19937_64 m_engine;
};

struct Soak {
    Program program = {};
    Random random;
    std::string detail = {}; ///< what this step has chosen, for the report
    std::string complaint = {}; ///< the rule that an operation found broken
};

struct Operation {
    const char* name;
    int weight; ///< how often it is chosen among all that are possible now
    bool (*isPossible)(Program&);
    Loss (*perform)(Soak&);
};

[[nodiscard]] const std::vector<Operation>& operations();

} // namespace cuebright::soak
