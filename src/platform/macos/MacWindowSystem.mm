#include "platform/macos/MacWindowSystem.h"

#include "platform/macos/NativeWindow.h"

namespace cuebright {

namespace {

constexpr NSWindowCollectionBehavior kFloating =
    NSWindowCollectionBehaviorCanJoinAllSpaces | NSWindowCollectionBehaviorFullScreenAuxiliary;
/// What must not be set beside the second of the above; the toolkit gives the first to windows with a zoom button.
constexpr NSWindowCollectionBehavior kOpposite =
    NSWindowCollectionBehaviorFullScreenPrimary | NSWindowCollectionBehaviorFullScreenNone;

} // namespace

void MacWindowSystem::keepAboveFullScreen(WindowId window)
{
    NSWindow* const native = nativeWindow(window);
    native.collectionBehavior = (native.collectionBehavior & ~kOpposite) | kFloating;
}

void MacWindowSystem::release(WindowId window)
{
    NSWindow* const native = nativeWindow(window);
    native.collectionBehavior = native.collectionBehavior & ~kFloating;
}

} // namespace cuebright
