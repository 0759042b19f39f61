#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace cuebright {

/// The shortcuts as the user reads them; the keys themselves are handled elsewhere.
struct ShortcutSection {
    struct Row {
        QString label;
        QString keys;
    };

    QString title;
    std::vector<Row> rows;
};

[[nodiscard]] std::vector<ShortcutSection> shortcutReference();

/// Explains ⌘ and ⌥ where the system does not use these symbols.
[[nodiscard]] std::optional<QString> keySymbolNote();

} // namespace cuebright
