#pragma once

#include "platform/Log.h"

namespace cuebright {

/// Standard output, line by line. A closed or full one swallows the line.
class StdoutLog final : public Log {
public:
    void writeLine(std::string_view line) override;
};

} // namespace cuebright
