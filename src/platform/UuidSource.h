#pragma once

#include "foundation/Uuid.h"

namespace cuebright {

/// Makes fresh identifiers.
class UuidSource {
public:
    virtual ~UuidSource() = default;

    /// A random UUID (RFC 9562, version 4).
    [[nodiscard]] virtual Uuid makeUuid() = 0;
};

} // namespace cuebright
