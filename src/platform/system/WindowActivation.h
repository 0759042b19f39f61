#pragma once

#include <string>

class QWidget;

namespace cuebright {

// Defined once for each system.

/// Gives a window that is on the screen the keyboard, because the user asked for that outside of this program. `token`
/// is what came with the request. Ends the launch too.
void activateForUser(QWidget& window, const std::string& token);

/// The launch that `token` came from is over, as the user sees it: no busy pointer any more.
void endLaunch(QWidget& window, const std::string& token);

} // namespace cuebright
