#pragma once

#include <string>
#include <string_view>

namespace cuebright {

// The method on the session bus that the script calls.
inline constexpr std::string_view kKWinReportPath = "/CaptureExclusion";
inline constexpr std::string_view kKWinReportInterface = "app.cuebright.CaptureExclusion";
inline constexpr std::string_view kKWinReportMethod = "Report";

/// A script that leaves all windows of a process out of screen shares while it is loaded in KWin.
///
/// It reports one word to `busName` for all of these windows together: when it starts, if there are any; whenever one
/// is added (an X11 window is a new one each time it is mapped); and whenever KWin emits that a window's flag has
/// changed. "omitted": the flag reads back as set on each of them; "refused": it does not; "unsupported": KWin has no
/// such flag (before Plasma 6.6).
[[nodiscard]] std::string kwinScript(long pid, std::string_view busName);

} // namespace cuebright
