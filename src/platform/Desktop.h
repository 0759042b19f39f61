#pragma once

namespace cuebright {

class CaptureExclusion;
class HotKeys;
class WindowSystem;

/// The desktop services that the program's windows use. Each outlives every copy of this; main thread only.
struct Desktop {
    CaptureExclusion& captureExclusion;
    HotKeys& hotKeys;
    WindowSystem& windowSystem;
};

} // namespace cuebright
