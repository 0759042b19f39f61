#pragma once

#include "platform/CaptureExclusion.h"

namespace cuebright {

/// For a system that nothing can be asked of, and of which this much is known.
class NoCaptureExclusion final : public CaptureExclusion {
public:
    explicit NoCaptureExclusion(State known = State::Unknown)
        : m_known(known)
    {
    }

    State state() override { return m_known; }
    void reapplyIfLost() override { }

private:
    State m_known;
};

} // namespace cuebright
