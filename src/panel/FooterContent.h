#pragma once

#include <optional>
#include <string>

namespace cuebright {

class CardStore;

/// What the footer says and offers; what is absent is not shown.
struct FooterContent {
    std::string position;
    std::string positionAccessibleName;
    std::optional<std::string> wordCount;
    std::optional<std::string> error;
    std::optional<std::string> feedback;
    bool isEditing = false;
    bool canGoPrev = false;
    bool canGoNext = false;

    bool operator==(const FooterContent&) const = default;
};

[[nodiscard]] FooterContent footerContent(const CardStore& store);

} // namespace cuebright
