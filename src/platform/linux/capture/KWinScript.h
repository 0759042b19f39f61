#pragma once

#include <string>
#include <string_view>

namespace cuebright {

// Where the script reports to: an object of ours on the session bus.
inline constexpr std::string_view kKWinReportPath = "/CaptureExclusion";
inline constexpr std::string_view kKWinReportInterface = "app.cuebright.CaptureExclusion";
inline constexpr std::string_view kKWinReportMethod = "Report";

/// The script that leaves all windows of a process out of screen shares, for as long as KWin keeps it.
///
/// It reports one word to `busName` for all of these windows together: at once where there are any, whenever one is
/// added (an X11 window is a new one at each map), and whenever KWin says that a window's flag has changed. "omitted":
/// the flag was read back as set on each of them; "refused": it was not; "unsupported": KWin has no such flag (before
/// Plasma 6.6).
[[nodiscard]] std::string kwinScript(long pid, std::string_view busName);

} // namespace cuebright
