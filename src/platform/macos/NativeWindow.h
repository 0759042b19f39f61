#pragma once

#include "platform/WindowSystem.h"

#import <AppKit/AppKit.h>

namespace cuebright {

/// The NSWindow of a `QWindow`, whose id is an NSView. Null while it has none.
[[nodiscard]] inline NSWindow* nativeWindow(WindowSystem::WindowId window)
{
    return ((__bridge NSView*)reinterpret_cast<void*>(window)).window;
}

} // namespace cuebright
