#include "platform/macos/MacWindowSystem.h"

#include "platform/macos/NativeWindow.h"

namespace cuebright {

namespace {

constexpr NSWindowCollectionBehavior kFloating =
    NSWindowCollectionBehaviorCanJoinAllSpaces | NSWindowCollectionBehaviorFullScreenAuxiliary;
/// Excluded by FullScreenAuxiliary; Qt sets the first for windows with a zoom button.
constexpr NSWindowCollectionBehavior kConflicting =
    NSWindowCollectionBehaviorFullScreenPrimary | NSWindowCollectionBehaviorFullScreenNone;

} // namespace

void MacWindowSystem::keepAboveFullScreen(WindowId window)
{
    NSWindow* const native = nativeWindow(window);
    native.collectionBehavior = (native.collectionBehavior & ~kConflicting) | kFloating;
}

void MacWindowSystem::release(WindowId window)
{
    NSWindow* const native = nativeWindow(window);
    native.collectionBehavior = native.collectionBehavior & ~kFloating;
}

} // namespace cuebright
