#pragma once

#include "foundation/Signal.h"

namespace cuebright {

/// The user's accessibility settings. Cheap to read; never waits for another process.
class Accessibility {
public:
    virtual ~Accessibility() = default;

    [[nodiscard]] virtual bool reduceMotion() = 0;
    [[nodiscard]] virtual bool reduceTransparency() = 0;
    [[nodiscard]] virtual bool increaseContrast() = 0;

    /// Emitted after one of the three has changed.
    Signal<> changed;
};

} // namespace cuebright
