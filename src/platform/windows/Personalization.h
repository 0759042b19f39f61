#pragma once

namespace cuebright {

// Settings of the page "Colours", read from the registry at each call because Windows has no function for them.
// Compiled for Windows, not run on it yet.

[[nodiscard]] bool appsAreDark();
[[nodiscard]] bool transparencyIsOff();

} // namespace cuebright
