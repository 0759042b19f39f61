#pragma once

#include <cstdint>
#include <string>

namespace cuebright {

/// One non-blank line of a card.
struct Block {
    enum class Kind { Heading, Bullet, NumberedItem, Blockquote, Paragraph };

    Kind kind;
    std::string text; ///< UTF-8, inline markers still in it
    std::int64_t number = 0; ///< of a numbered item, as written; 1 where it does not fit

    bool operator==(const Block&) const = default;
};

} // namespace cuebright
