#pragma once

#include "foundation/Signal.h"

namespace cuebright {

/// How the program's windows appear in a screen share or a recording: what the system is known to do, never what was
/// requested. The same for all windows of the program.
class CaptureExclusion {
public:
    enum class State {
        Excluded, ///< left out; what is behind them shows
        Blackout, ///< replaced by a black box
        Visible,
        Unknown, ///< cannot be determined
    };

    virtual ~CaptureExclusion() = default;

    /// Cheap; never waits for another process.
    [[nodiscard]] virtual State state() = 0;

    /// False while the system's answer is pending; becomes true within seconds in any case.
    [[nodiscard]] virtual bool isSettled() { return true; }

    /// Call before each show. If the windows were `Excluded` and no longer are, excludes them again.
    virtual void reapplyIfLost() = 0;

    /// Emitted after `state` or `isSettled` has changed.
    Signal<> changed;

    /// The system has confirmed that the windows are `Excluded` again after `reapplyIfLost`.
    Signal<> reapplied;
};

} // namespace cuebright
