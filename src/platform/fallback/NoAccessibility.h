#pragma once

#include "platform/Accessibility.h"

namespace cuebright {

/// For a system whose settings cannot be read.
class NoAccessibility final : public Accessibility {
public:
    bool reduceMotion() override { return false; }
    bool reduceTransparency() override { return false; }
    bool increaseContrast() override { return false; }
};

} // namespace cuebright
