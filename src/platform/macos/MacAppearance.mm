#include "platform/macos/MacAppearance.h"

#import <AppKit/AppKit.h>

namespace {

NSString* const kObservedKey = @"effectiveAppearance";

} // namespace

@interface CuebrightAppearanceObserver : NSObject
@property(nonatomic, copy) void (^changed)(void);
@end

@implementation CuebrightAppearanceObserver
- (void)observeValueForKeyPath:(NSString*)keyPath
                      ofObject:(id)object
                        change:(NSDictionary<NSKeyValueChangeKey, id>*)change
                       context:(void*)context
{
    self.changed();
}
@end

namespace cuebright {

struct MacAppearance::Observation {
    CuebrightAppearanceObserver* observer;
};

MacAppearance::MacAppearance()
    : m_observation(std::make_unique<Observation>())
{
    m_observation->observer = [[CuebrightAppearanceObserver alloc] init];
    m_observation->observer.changed = ^{ changed.notify(); };
    [NSApp addObserver:m_observation->observer forKeyPath:kObservedKey options:0 context:nullptr];
}

MacAppearance::~MacAppearance() { [NSApp removeObserver:m_observation->observer forKeyPath:kObservedKey]; }

bool MacAppearance::isDark() const
{
    NSAppearanceName const name = [NSApp.effectiveAppearance
        bestMatchFromAppearancesWithNames:@[ NSAppearanceNameAqua, NSAppearanceNameDarkAqua ]];
    return [name isEqualToString:NSAppearanceNameDarkAqua];
}

} // namespace cuebright
