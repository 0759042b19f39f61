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

/// How wide the footer's items would like to be, in logical pixels; 0 for what is not shown.
struct FooterWidths {
    int position = 0;
    int wordCount = 0;
    int timer = 0;
    int error = 0;
    int errorMinimum = 0; ///< without its text
    int feedback = 0;
    int buttons = 0;
};

/// Where the footer's items stand. Width 0: there is no room for it.
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

/// One row, the buttons at its right end. Where it is too narrow the error gives way first, then the feedback, then
/// the word count, each cut to a few letters at least; what cannot even have those is left out.
[[nodiscard]] FooterPlaces footerPlaces(FooterWidths widths, int available);

} // namespace cuebright
