#pragma once

#include <optional>
#include <string>

namespace cuebright {

class CardStore;

/// What the footer shows; absent items are hidden.
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

/// Preferred widths of the footer's items in logical pixels; 0 for hidden ones.
struct FooterWidths {
    int position = 0;
    int wordCount = 0;
    int timer = 0;
    int error = 0;
    int errorMinimum = 0; ///< the error without its text
    int feedback = 0;
    int buttons = 0;
};

/// Where the footer's items are. Width 0: no room.
struct FooterPlaces {
    struct Place {
        int x = 0;
        int width = 0;

        bool operator==(const Place&) const = default;
    };

    Place position;
    Place wordCount;
    Place timer;
    Place error;
    Place feedback;
    Place buttons;
};

constexpr int kFooterGap = 12; ///< between items

/// One row with the buttons at its right end. Where there is too little room, it shrinks the error, then the feedback,
/// then the word count, each to a few letters; then it leaves out the feedback, then the word count.
[[nodiscard]] FooterPlaces footerPlaces(FooterWidths widths, int available);

} // namespace cuebright
