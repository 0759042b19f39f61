#pragma once

#include "platform/CaptureExclusion.h"

namespace cuebright {

/// For a system that offers nothing; the state is what is known of it.
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
