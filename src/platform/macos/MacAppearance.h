#pragma once

#include "foundation/Signal.h"

#include <memory>

namespace cuebright {

/// The application's light or dark appearance. Needs the application object. Not compiled or run on a Mac yet.
class MacAppearance final {
public:
    MacAppearance();
    ~MacAppearance();

    [[nodiscard]] bool isDark() const;

    /// `isDark` may have changed.
    Signal<> changed;

private:
    struct Observation;
    std::unique_ptr<Observation> m_observation;
};

} // namespace cuebright
