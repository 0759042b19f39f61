#include "platform/macos/MacCaptureExclusion.h"

#include "platform/macos/NativeWindow.h"

#include <algorithm>
#include <utility>

namespace cuebright {

namespace {

bool isMacOs15OrLater()
{
    return [NSProcessInfo.processInfo isOperatingSystemAtLeastVersion:NSOperatingSystemVersion {15, 0, 0}];
}

bool isUnshared(WindowSystem::WindowId window)
{
    NSWindow* const native = nativeWindow(window);
    return native && native.sharingType == NSWindowSharingNone;
}

} // namespace

MacCaptureExclusion::MacCaptureExclusion()
    : m_isIgnored(isMacOs15OrLater())
    , m_state(m_isIgnored ? State::Visible : State::Unknown)
{
}

void MacCaptureExclusion::reapplyIfLost() { applyToAll(); }

void MacCaptureExclusion::windowAppears(WindowSystem::WindowId window)
{
    if (std::ranges::find(m_windows, window) == m_windows.end())
        m_windows.push_back(window);
    applyToAll();
}

void MacCaptureExclusion::windowGoes(WindowSystem::WindowId window)
{
    std::erase(m_windows, window);
    applyToAll();
}

void MacCaptureExclusion::applyToAll()
{
    for (const auto window : m_windows) {
        if (!isUnshared(window))
            nativeWindow(window).sharingType = NSWindowSharingNone;
    }
    const bool areUnshared = !m_isIgnored && std::ranges::all_of(m_windows, isUnshared);
    const auto state = areUnshared ? State::Unknown : State::Visible;
    if (std::exchange(m_state, state) != state)
        changed.notify();
}

} // namespace cuebright
