#pragma once

namespace cuebright {

// The user's choices on the page "Colours" of the settings, for which Windows has no call: read anew each time.
// Compiled for Windows, not run on it yet.

[[nodiscard]] bool appsAreDark();
[[nodiscard]] bool transparencyIsOff();

} // namespace cuebright
