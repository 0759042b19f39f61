#pragma once

#include "platform/Desktop.h"

#include <memory>

namespace cuebright {

class Accessibility;
class Clock;
class MainQueue;
class QtAppearance;

/// The services of one system that Qt does not offer.
class SystemServices {
public:
    virtual ~SystemServices() = default;

    [[nodiscard]] virtual Clock& clock() = 0;
    [[nodiscard]] virtual Accessibility& accessibility() = 0;
    [[nodiscard]] virtual Desktop desktop() = 0;

    /// Begins what would hold up the first frame: questions to other processes. Call once, after that frame. Until
    /// then and until they answer, each service gives its most careful answer.
    virtual void start() = 0;
};

/// Call after the application object is made. What the system says about its light or dark look goes to `appearance`.
/// Both outlive the services. Defined once for each system, in its own folder.
[[nodiscard]] std::unique_ptr<SystemServices> makeSystemServices(QtAppearance& appearance, MainQueue& mainQueue);

} // namespace cuebright
