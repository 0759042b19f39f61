#pragma once

#include "ui/settings/AuxiliaryWindow.h"

namespace cuebright {

/// Name, version, tagline and support address, as a tab of the settings.
class AboutTab final : public QWidget {
public:
    AboutTab(const UiContext& context, QWidget* parent);
};

/// The same in its own window, with the application's icon; the credits can be selected and copied.
class AboutWindow final : public AuxiliaryWindow {
public:
    explicit AboutWindow(const UiContext& context);
};

} // namespace cuebright
