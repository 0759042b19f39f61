#pragma once

#include "foundation/Signal.h"

#include <functional>

namespace cuebright {

/// What becomes of the program's windows in a screen share or a recording: what the system is known to do, never what
/// was asked of it. Holds for all windows of the program alike.
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

    /// False while the system has been asked and has not answered yet; becomes true within seconds, whatever happens.
    [[nodiscard]] virtual bool isSettled() { return true; }

    /// Call before each show. Where the windows were `Excluded` once and are no longer, hides them again; `reapplied`
    /// runs once, on the main thread, as soon as the system confirms that they are out, and never otherwise.
    virtual void reapplyIfLost(std::function<void()> reapplied) = 0;

    /// `state` or `isSettled` has changed.
    Signal<> changed;
};

} // namespace cuebright
