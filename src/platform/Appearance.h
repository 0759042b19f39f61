#pragma once

#include "foundation/Signal.h"

namespace cuebright {

/// The whole application's light or dark look.
class Appearance {
public:
    enum class Choice { FollowSystem, Light, Dark };

    virtual ~Appearance() = default;

    virtual void choose(Choice choice) = 0;

    /// Whether the look is dark: as chosen or, for `FollowSystem`, as the system's setting is now.
    [[nodiscard]] virtual bool isDark() = 0;

    /// Emitted after `isDark` has changed.
    Signal<> changed;
};

} // namespace cuebright
