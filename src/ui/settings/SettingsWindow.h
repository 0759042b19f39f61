#pragma once

#include "ui/settings/AuxiliaryWindow.h"

#include <functional>

class QMenuBar;

namespace cuebright {

/// The settings in a window of their own.
class SettingsWindow final : public AuxiliaryWindow {
public:
    /// `reset` puts everything back to the first day; it is called when the user has confirmed it.
    SettingsWindow(const UiContext& context, std::function<void()> reset);

    /// For the main menu, which has to be there for the keyboard in this window too.
    [[nodiscard]] QMenuBar& addMenuBar();

protected:
    void settleSize() override;
};

} // namespace cuebright
