#pragma once

#include <QKeyEvent>

namespace cuebright {

/// A key with its modifiers, as the key tables compare it.
struct KeyStroke {
    Qt::KeyboardModifiers modifiers; ///< only Shift, Ctrl, Alt and Meta count
    int key = 0; ///< `Qt::Key`
    int digit = -1; ///< of the character, otherwise of the physical key in the digit row; −1 for none

    [[nodiscard]] static KeyStroke of(const QKeyEvent& event);
};

} // namespace cuebright
