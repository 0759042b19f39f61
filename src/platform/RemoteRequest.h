#pragma once

#include <string>

namespace cuebright {

/// A request to the running program from another launch, the desktop or a script.
struct RemoteRequest {
    enum class Action {
        Activate, ///< show the panel and give it the focus
        ShowPanel, ///< without giving it the focus
        TogglePanel,
        NextCard,
        PreviousCard,
    };

    Action action = Action::Activate;
    /// The desktop's proof that the user asked for it (XDG activation token or startup notification id), or empty.
    std::string token {};

    friend bool operator==(const RemoteRequest&, const RemoteRequest&) = default;
};

} // namespace cuebright
