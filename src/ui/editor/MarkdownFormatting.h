#pragma once

#include <QString>

/// The formatting commands as pure functions, applied by `TextViewManager`.
///
/// Positions and lengths are in UTF-16 units, but inserted text counts as one per grapheme cluster in the new
/// selection.
namespace cuebright {

struct TextRange {
    int location = 0;
    int length = 0;

    bool operator==(const TextRange&) const = default;
};

/// A replacement and the selection after it.
struct TextEdit {
    TextRange range;
    QString replacement;
    TextRange selection;
};

/// The number of grapheme clusters.
[[nodiscard]] int characterCount(const QString& text);

/// Puts the selection between two markers and selects all of it; an empty selection puts the caret between them.
[[nodiscard]] TextEdit wrapEdit(const QString& text, TextRange selection, const QString& marker);
/// Makes the selection a link's text and selects the placeholder for the address; an empty selection inserts both
/// placeholders and selects the text.
[[nodiscard]] TextEdit linkEdit(const QString& text, TextRange selection);
/// Toggles `prefix` on the caret's line. Only line feeds end lines.
[[nodiscard]] TextEdit linePrefixEdit(const QString& text, TextRange selection, const QString& prefix);
/// The selection when an edit opens: the text of a heading in the first line, else the start.
[[nodiscard]] TextRange initialSelection(const QString& text);

} // namespace cuebright
