#pragma once

#include "foundation/Signal.h"

#include <memory>
#include <string>
#include <vector>

namespace cuebright {

/// What a system needs before the application object is made and before any thread starts. Keep it until the process
/// ends. Defined once for each system.
class ProcessSetup final {
public:
    ProcessSetup();
    ~ProcessSetup();

    /// Command-line options for the application object.
    [[nodiscard]] static std::vector<std::string> qtOptions();

    /// Call once, right after the application object is made.
    void onApplicationCreated();

    /// The user or the system asks the program to quit; emitted on the main thread, after `onApplicationCreated`.
    Signal<> terminationRequested;

private:
    struct System;
    std::unique_ptr<System> m_system;
};

} // namespace cuebright
