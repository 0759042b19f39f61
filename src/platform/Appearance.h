#pragma once

#include "foundation/Signal.h"

namespace cuebright {

/// The whole application's light or dark look.
class Appearance {
public:
    enum class Choice { FollowSystem, Light, Dark };

    virtual ~Appearance() = default;

    virtual void choose(Choice choice) = 0;

    /// Whether the look is dark now, after the choice and the system's own setting.
    [[nodiscard]] virtual bool isDark() = 0;

    /// `isDark` has changed.
    Signal<> changed;
};

} // namespace cuebright
