#pragma once

#include "markdown/Block.h"

#include <algorithm>

/// Sizes of a card's blocks, in logical pixels.
namespace cuebright {

/// The size of a heading's text for body text of `fontSize`.
[[nodiscard]] constexpr double headingSize(double fontSize) { return std::min(2 * fontSize, 42.0); }

/// The space below a block, the last one included.
[[nodiscard]] constexpr double bottomPadding(Block::Kind kind)
{
    switch (kind) {
    case Block::Kind::Heading:
        return 36;
    case Block::Kind::Bullet:
    case Block::Kind::NumberedItem:
        return 22;
    case Block::Kind::Blockquote:
        return 20;
    case Block::Kind::Paragraph:
        break;
    }
    return 16;
}

/// The extra space between the lines of a block.
[[nodiscard]] constexpr double lineSpacing(Block::Kind kind) { return kind == Block::Kind::Heading ? 6 : 4; }

} // namespace cuebright
