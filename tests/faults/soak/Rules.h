#pragma once

#include "Program.h"

#include <map>
#include <optional>
#include <string>

namespace cuebright::soak {

/// What an operation may take away.
enum class Loss { Nothing, TypedText, OneCard, OneDeck, Anything };

/// The texts of all cards, and what is being typed.
struct Texts {
    explicit Texts(const CardStore& store);

    std::map<Uuid, std::string> cards;
    std::optional<Uuid> editedCard;
    std::string editText;
};

/// Names, identifiers and texts of all decks and cards, in order.
[[nodiscard]] std::string contentOf(const CardStore& store);

/// The first rule that does not hold in this state; empty if all do.
[[nodiscard]] std::string brokenRule(Program& program);

/// What was lost, or made up, between two states beyond `allowed`; empty if nothing was.
[[nodiscard]] std::string lostText(const Texts& before, const Texts& after, Loss allowed);

} // namespace cuebright::soak
