#pragma once

#include "foundation/Signal.h"

namespace cuebright {

/// What becomes of the program's windows in a screen share or a recording: what the system is known to do, never what
/// was asked of it.
class CaptureExclusion {
public:
    enum class State {
        Excluded, ///< left out: what is behind the windows shows
        Blackout, ///< a black box shows in their place
        Visible,
        Unknown, ///< cannot be found out
    };

    virtual ~CaptureExclusion() = default;

    /// Cheap; never waits for another process.
    [[nodiscard]] virtual State state() = 0;

    /// `state` has changed.
    Signal<> changed;
};

} // namespace cuebright
