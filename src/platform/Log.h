#pragma once

#include <string_view>

namespace cuebright {

/// Diagnostics for users who start the program from a terminal.
class Log {
public:
    virtual ~Log() = default;

    /// Writes one line to standard output and flushes it. `line` has no line feed.
    virtual void writeLine(std::string_view line) = 0;
};

} // namespace cuebright
