#pragma once

#include "platform/Accessibility.h"

#include <memory>

namespace cuebright {

/// The accessibility settings of the page "Display". Not compiled or run on a Mac yet.
class MacAccessibility final : public Accessibility {
public:
    MacAccessibility();
    ~MacAccessibility() override;

    bool reduceMotion() override;
    bool reduceTransparency() override;
    bool increaseContrast() override;

private:
    struct Observation;
    std::unique_ptr<Observation> m_observation;
};

} // namespace cuebright
