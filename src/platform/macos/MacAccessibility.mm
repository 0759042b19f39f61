#include "platform/macos/MacAccessibility.h"

#import <AppKit/AppKit.h>

namespace cuebright {

struct MacAccessibility::Observation {
    id<NSObject> observer;
};

MacAccessibility::MacAccessibility()
    : m_observation(std::make_unique<Observation>())
{
    NSNotificationCenter* const center = NSWorkspace.sharedWorkspace.notificationCenter;
    // Without a queue, where a pending block could outlive this object. It is posted on the main thread.
    m_observation->observer =
        [center addObserverForName:NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification
                            object:nil
                             queue:nil
                        usingBlock:^(NSNotification*) { changed.notify(); }];
}

MacAccessibility::~MacAccessibility()
{
    [NSWorkspace.sharedWorkspace.notificationCenter removeObserver:m_observation->observer];
}

bool MacAccessibility::reduceMotion() { return NSWorkspace.sharedWorkspace.accessibilityDisplayShouldReduceMotion; }

bool MacAccessibility::reduceTransparency()
{
    return NSWorkspace.sharedWorkspace.accessibilityDisplayShouldReduceTransparency;
}

bool MacAccessibility::increaseContrast()
{
    return NSWorkspace.sharedWorkspace.accessibilityDisplayShouldIncreaseContrast;
}

} // namespace cuebright
