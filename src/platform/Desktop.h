#pragma once

namespace cuebright {

class CaptureExclusion;
class HotKeys;
class WindowSystem;

/// What the program's windows ask of the desktop they are on. All of it outlives whatever holds this; main thread only.
struct Desktop {
    CaptureExclusion& captureExclusion;
    HotKeys& hotKeys;
    WindowSystem& windowSystem;
};

} // namespace cuebright
