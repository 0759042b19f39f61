#pragma once

#include "ui/base/UiContext.h"
#include "ui/settings/SettingsPage.h"

#include <functional>

namespace cuebright {

/// The shortcut reference and the reset of all data.
class GeneralTab final : public SettingsPage {
public:
    /// `reset` is called after the user has confirmed.
    GeneralTab(const UiContext& context, std::function<void()> reset, QWidget* parent);

private:
    void addShortcuts();
    void addReset();
    void askToReset();

    const UiContext& m_context;
    std::function<void()> m_reset;
};

} // namespace cuebright
