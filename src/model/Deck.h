#pragma once

#include "model/Card.h"

#include <string>
#include <vector>

namespace cuebright {

/// A named list of cards in the order of presentation.
struct Deck {
    Uuid id;
    std::string name; ///< UTF-8
    std::vector<Card> cards; ///< may be empty
    Instant createdAt;
    Instant updatedAt;
};

} // namespace cuebright
