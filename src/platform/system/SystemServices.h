#pragma once

#include "platform/Desktop.h"

#include <memory>

namespace cuebright {

class Accessibility;
class MainQueue;
class QtAppearance;
class QtWindowEvents;

/// The ports that Qt cannot implement. Defined once for each system.
class SystemServices final {
public:
    /// Needs the application object. `appearance` is given the system's light or dark look. The arguments must outlive
    /// this.
    SystemServices(QtAppearance& appearance, QtWindowEvents& windowEvents, MainQueue& mainQueue);
    ~SystemServices();

    [[nodiscard]] Accessibility& accessibility();
    [[nodiscard]] Desktop desktop();

    /// Begins what would delay the first frame: requests to other processes. Call once, after that frame. Until they
    /// answer, each service gives its most cautious answer.
    void start();

private:
    struct System;
    std::unique_ptr<System> m_system;
};

} // namespace cuebright
