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

// How the text of a card's blocks is set: fonts, formats and lines. Lengths in logical pixels.

[[nodiscard]] QFont italic(QFont font);
[[nodiscard]] QFont blockFont(Block::Kind kind, double fontSize);
/// `fontSize` is that of the card's body.
[[nodiscard]] QTextCharFormat runFormat(const StyledRun& run, double fontSize, const Colors& colors);

/// For the eye a carriage return is a blank; the number of units stays the same.
[[nodiscard]] QString displayText(const std::string& utf8);

/// A text that wraps anywhere if it must and finds its own direction; without lines yet.
[[nodiscard]] std::unique_ptr<QTextLayout> makeText(const QString& text, const QFont& font);
/// Breaks the text into lines with so much extra space between them.
void breakLines(QTextLayout& layout, double width, double spacing);
[[nodiscard]] double bottomOfLine(const QTextLayout& layout, int index);

} // namespace cuebright
