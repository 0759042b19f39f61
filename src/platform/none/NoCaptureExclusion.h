#pragma once

#include "platform/CaptureExclusion.h"

namespace cuebright {

/// For a system that cannot be asked: nothing is known.
class NoCaptureExclusion final : public CaptureExclusion {
public:
    State state() override { return State::Unknown; }
};

} // namespace cuebright
