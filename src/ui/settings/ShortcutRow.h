#pragma once

#include "ui/base/UiContext.h"
#include "ui/settings/ShortcutReference.h"

#include <QWidget>

namespace cuebright {

/// One line of the shortcut reference: what is done on the left, by which keys on the right.
class ShortcutRow final : public QWidget {
public:
    ShortcutRow(const UiContext& context, const ShortcutSection::Row& row, QWidget* parent);
};

} // namespace cuebright
