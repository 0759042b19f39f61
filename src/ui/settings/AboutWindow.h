#pragma once

#include "ui/settings/AuxiliaryWindow.h"

namespace cuebright {

/// Name, version and credits of the program.
class AboutWindow final : public AuxiliaryWindow {
public:
    explicit AboutWindow(const UiContext& context);
};

} // namespace cuebright
