#pragma once

#include "foundation/Signal.h"

#include <memory>
#include <string>
#include <vector>

namespace cuebright {

/// What a system wants from the process before the application object is made, and before any thread starts. Keep it to
/// the end; defined once for each system, in its own folder.
class ProcessSetup final {
public:
    ProcessSetup();
    ~ProcessSetup();

    /// The command-line options that the toolkit is to get here.
    [[nodiscard]] static std::vector<std::string> toolkitOptions();

    /// Call once, as soon as the application object is there.
    void onApplicationCreated();

    /// The user or the system asks the program to leave; on the main thread, not before `onApplicationCreated`.
    Signal<> terminationRequested;

private:
    struct System;
    std::unique_ptr<System> m_system;
};

} // namespace cuebright
