#pragma once

#include "app/CompanionWindow.h"

namespace cuebright {

/// Name, version and credits of the program.
class AboutWindow final : public CompanionWindow {
public:
    explicit AboutWindow(const PanelContext& context);
};

} // namespace cuebright
