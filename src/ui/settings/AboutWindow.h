#pragma once

#include "ui/settings/CompanionWindow.h"

namespace cuebright {

/// Name, version and credits of the program.
class AboutWindow final : public CompanionWindow {
public:
    explicit AboutWindow(const PanelContext& context);
};

} // namespace cuebright
