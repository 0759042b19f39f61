#pragma once

#include "foundation/Seconds.h"

#include <optional>

namespace cuebright {

/// The curve and length of an animated change.
struct Animation {
    enum class Curve { EaseInOut, EaseOut };

    Curve curve = Curve::EaseInOut;
    Seconds duration {};

    bool operator==(const Animation&) const = default;
};

/// Notice that a property of the store is about to get a value, be it a new one or the same.
struct Change {
    enum class Property {
        Decks,
        ActiveDeckIndex,
        ActiveCardIndex,
        IsEditing,
        EditText,
        NavigationDirection,
        DeckTransitionID,
        ShowWordCount,
        SpeakingPace,
        IsDeckSwitch,
        FeedbackMessage,
        PersistentError,
        ErrorDismissed,
        Theme,
        FontSize,
        Opacity,
    };

    Property property;
    std::optional<Animation> animation; ///< how the change is to be shown; absent: at once

    bool operator==(const Change&) const = default;
};

} // namespace cuebright
