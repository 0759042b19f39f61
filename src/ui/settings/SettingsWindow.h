#pragma once

#include "ui/settings/AuxiliaryWindow.h"

#include <functional>

class QMenuBar;

namespace cuebright {

/// The settings window.
class SettingsWindow final : public AuxiliaryWindow {
public:
    /// `reset` deletes all data; it is called after the user has confirmed.
    SettingsWindow(const UiContext& context, std::function<void()> reset);

    /// Adds an empty menu bar above the settings, which keep their size.
    [[nodiscard]] QMenuBar& addMenuBar();
};

} // namespace cuebright
