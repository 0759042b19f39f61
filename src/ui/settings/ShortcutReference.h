#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace cuebright {

/// What the keys do, for the user to read. Answering them is the business of others.
struct ShortcutSection {
    struct Row {
        QString label;
        QString keys;
    };

    QString title;
    std::vector<Row> rows;
};

[[nodiscard]] std::vector<ShortcutSection> shortcutReference();

/// What the symbols of the reference mean on a keyboard that does not carry them.
[[nodiscard]] std::optional<QString> keySymbolNote();

} // namespace cuebright
