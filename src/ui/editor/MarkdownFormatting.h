#pragma once

#include <QString>

/// What the formatting commands make of a text. Pure functions; `TextViewManager` applies them.
///
/// Positions and lengths count UTF-16 units. Where a new selection is measured by characters, it counts characters as
/// people see them (grapheme clusters), each as one.
namespace cuebright {

struct TextRange {
    int location = 0;
    int length = 0;

    bool operator==(const TextRange&) const = default;
};

/// One replacement in a text and what is selected after it.
struct TextEdit {
    TextRange range;
    QString replacement;
    TextRange selection;
};

[[nodiscard]] int characterCount(const QString& text);

/// The selection between two markers, wholly selected; without a selection, the caret between them.
[[nodiscard]] TextEdit wrapEdit(const QString& text, TextRange selection, const QString& marker);
/// The selection as the text of a link with its address to be filled in; without a selection, both to be filled in.
[[nodiscard]] TextEdit linkEdit(const QString& text, TextRange selection);
/// The caret's line with the prefix, or without if it had it. Lines end with line feeds only, as they do in a card.
[[nodiscard]] TextEdit linePrefixEdit(const QString& text, TextRange selection, const QString& prefix);
/// What is selected when an edit opens: the text of a heading in the first line, else nothing, at the start.
[[nodiscard]] TextRange initialSelection(const QString& text);

} // namespace cuebright
