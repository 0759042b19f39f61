#pragma once

#include "ui/base/UiContext.h"

#include <QWidget>

namespace cuebright {

/// What the program is, and whom to ask about it.
class AboutTab final : public QWidget {
public:
    AboutTab(const UiContext& context, QWidget* parent);
};

} // namespace cuebright
