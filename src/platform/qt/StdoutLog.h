#pragma once

#include "platform/Log.h"

namespace cuebright {

/// Writes to standard output. Lines that cannot be written are dropped.
class StdoutLog final : public Log {
public:
    void writeLine(std::string_view line) override;
};

} // namespace cuebright
