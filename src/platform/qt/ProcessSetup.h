#pragma once

#include "foundation/Signal.h"

#include <memory>

namespace cuebright {

/// What a system wants from the process before the application object is made. Make it first of all, keep it to the
/// end; defined once for each system, in its own folder.
class ProcessSetup final {
public:
    ProcessSetup();
    ~ProcessSetup();

    /// Call once, as soon as the application object is there.
    void applicationIsThere();

    /// The user or the system asks the program to leave; on the main thread, not before `applicationIsThere`.
    Signal<> terminationRequested;

private:
    struct System;
    std::unique_ptr<System> m_system;
};

} // namespace cuebright
