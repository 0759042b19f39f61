#pragma once

#include "foundation/Instant.h"
#include "foundation/Uuid.h"

#include <string>

namespace cuebright {

/// One cue card: a short Markdown text.
struct Card {
    Uuid id; ///< never changes; not checked for uniqueness
    std::string content; ///< UTF-8, exactly as typed, may be empty
    Instant createdAt;
    Instant updatedAt; ///< when the text was last saved
};

} // namespace cuebright
