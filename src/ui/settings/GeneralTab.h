#pragma once

#include "ui/base/UiContext.h"
#include "ui/settings/SettingsPage.h"

#include <functional>

namespace cuebright {

/// What the keys do, and the way back to a program as on its first day.
class GeneralTab final : public SettingsPage {
public:
    /// `reset` is called when the user has confirmed it.
    GeneralTab(const UiContext& context, std::function<void()> reset, QWidget* parent);

private:
    void addShortcuts();
    void addReset();
    void askToReset();

    const UiContext& m_context;
    std::function<void()> m_reset;
};

} // namespace cuebright
