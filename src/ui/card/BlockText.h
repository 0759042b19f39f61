#pragma once

#include "markdown/Block.h"
#include "markdown/InlineParser.h"
#include "theme/Colors.h"

#include <QFont>
#include <QString>
#include <QTextCharFormat>
#include <QTextLayout>

#include <memory>
#include <string>

namespace cuebright {

// Fonts, formats and line breaking of a card's blocks. Lengths are logical pixels.

[[nodiscard]] QFont italic(QFont font);
[[nodiscard]] QFont blockFont(Block::Kind kind, double fontSize);
/// `fontSize` is that of the card's body.
[[nodiscard]] QTextCharFormat runFormat(const StyledRun& run, double fontSize, const Colors& colors);

/// Shows carriage returns as spaces; the length stays the same.
[[nodiscard]] QString displayText(const std::string& utf8);

/// A text without lines yet. Wraps inside words where necessary; its direction follows from its characters.
[[nodiscard]] std::unique_ptr<QTextLayout> makeText(const QString& text, const QFont& font);
/// Breaks the text into lines, `spacing` apart.
void breakLines(QTextLayout& layout, double width, double spacing);
[[nodiscard]] double bottomOfLine(const QTextLayout& layout, int index);

} // namespace cuebright
