#pragma once

#include "foundation/Seconds.h"

#include <algorithm>
#include <initializer_list>
#include <optional>

namespace cuebright {

/// The direction of the last move between cards.
enum class NavigationDirection { Forward, Backward };

/// The curve and length of an animated change.
struct Animation {
    enum class Curve { EaseInOut, EaseOut };

    Curve curve = Curve::EaseInOut;
    Seconds duration {};

    bool operator==(const Animation&) const = default;
};

/// Says that a property of the store is about to be assigned, possibly the value it already has.
struct Change {
    enum class Property {
        Decks, ///< the list, or anything in a deck or card
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
    std::optional<Animation> animation; ///< absent: show the change immediately

    /// For observers: whether the change concerns one of the properties that they show.
    [[nodiscard]] bool isOneOf(std::initializer_list<Property> properties) const
    {
        return std::find(properties.begin(), properties.end(), property) != properties.end();
    }

    bool operator==(const Change&) const = default;
};

} // namespace cuebright
