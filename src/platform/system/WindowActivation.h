#pragma once

#include <string>

class QWidget;

namespace cuebright {

// Defined once for each system.

/// Gives a visible window focus because the user asked for it outside of this program, with the request's `token`.
/// Calls `endLaunch` too.
void activateForUser(QWidget& window, const std::string& token);

/// Ends the busy pointer of the launch that `token` came from.
void endLaunch(QWidget& window, const std::string& token);

} // namespace cuebright
