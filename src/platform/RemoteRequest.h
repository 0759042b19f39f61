#pragma once

#include <string>

namespace cuebright {

/// What reaches the running program from outside: a further launch of it, the desktop, a script.
struct RemoteRequest {
    enum class Action {
        Activate, ///< show the panel and give it the keyboard
        ShowPanel, ///< leave the keyboard where it is
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
