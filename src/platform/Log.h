#pragma once

#include <string_view>

namespace cuebright {

/// Diagnostics for whoever started the program from a terminal.
class Log {
public:
    virtual ~Log() = default;

    /// Writes one line to standard output at once. `line` has no line feed.
    virtual void writeLine(std::string_view line) = 0;
};

} // namespace cuebright
