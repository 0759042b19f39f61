#pragma once

#include "Model.h"
#include "Program.h"

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
    /// Good at breaking things.
    std::string oddText(int mostPieces);

private:
    std::mt19937_64 m_engine;
};

/// Both sides of the comparison, and chance.
struct Soak {
    Program program = {};
    Model model = {};
    Random random;
    std::string detail = {}; ///< what chance has chosen in this step
};

/// Something that happens to the program, and to the model by the rules.
struct Operation {
    const char* name;
    int weight; ///< how often, among all that can happen now
    bool (*canHappen)(const Model&);
    void (*perform)(Soak&);
};

[[nodiscard]] std::vector<Operation> operations(); ///< all of them
[[nodiscard]] std::vector<Operation> writingOperations(); ///< in the editor, undo and redo

} // namespace cuebright::soak
