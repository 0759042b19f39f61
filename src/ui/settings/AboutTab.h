#pragma once

#include "ui/base/PanelContext.h"

#include <QWidget>

namespace cuebright {

/// What the program is, and whom to ask about it.
class AboutTab final : public QWidget {
public:
    AboutTab(const PanelContext& context, QWidget* parent);
};

} // namespace cuebright
