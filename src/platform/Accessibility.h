#pragma once

#include "foundation/Signal.h"

namespace cuebright {

/// What the user asks of every program. Read anew at each use; cheap, never waits for another process.
class Accessibility {
public:
    virtual ~Accessibility() = default;

    [[nodiscard]] virtual bool reduceMotion() = 0;
    [[nodiscard]] virtual bool reduceTransparency() = 0;
    [[nodiscard]] virtual bool increaseContrast() = 0;

    /// One of the three has changed.
    Signal<> changed;
};

} // namespace cuebright
