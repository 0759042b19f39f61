#pragma once

#include <cstdint>
#include <string>

namespace cuebright {

/// One non-blank line of a card.
struct Block {
    enum class Kind { Heading, Bullet, NumberedItem, Blockquote, Paragraph };

    Kind kind;
    std::string text; ///< UTF-8, with its inline markers
    std::int64_t number = 0; ///< of a numbered item; 1 if too large or not in ASCII digits

    bool operator==(const Block&) const = default;
};

} // namespace cuebright
