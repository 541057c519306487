#include "Platform/macOS/AppKitApplication.h"

#import <AppKit/AppKit.h>

using kestrowind::ApplicationDelegate;

@interface KestrowindApplicationDelegate : NSObject <NSApplicationDelegate>
- (instancetype)initWithDelegate:(ApplicationDelegate&)delegate
                         toolkit:(id<NSApplicationDelegate>)toolkit;
@end

@implementation KestrowindApplicationDelegate {
    ApplicationDelegate* _delegate;
    id<NSApplicationDelegate> _toolkit;
}

- (instancetype)initWithDelegate:(ApplicationDelegate&)delegate
                         toolkit:(id<NSApplicationDelegate>)toolkit {
    if ((self = [super init])) {
        _delegate = &delegate;
        _toolkit = toolkit;
    }
    return self;
}

- (BOOL)applicationShouldHandleReopen:(NSApplication*)application
                    hasVisibleWindows:(BOOL)hasVisibleWindows {
    return _delegate->applicationShouldHandleReopen(hasVisibleWindows);
}

- (NSApplicationTerminateReply)applicationShouldTerminate:(NSApplication*)application {
    return _delegate->applicationShouldTerminate() == ApplicationDelegate::TerminateReply::now
               ? NSTerminateNow
               : NSTerminateLater;
}

- (BOOL)respondsToSelector:(SEL)selector {
    return [super respondsToSelector:selector] || [_toolkit respondsToSelector:selector];
}

- (id)forwardingTargetForSelector:(SEL)selector {
    return _toolkit;
}

@end

namespace kestrowind {

struct AppKitApplication::Joint {
    KestrowindApplicationDelegate* delegate;
};

AppKitApplication::AppKitApplication() = default;
AppKitApplication::~AppKitApplication() = default;

void AppKitApplication::setDelegate(ApplicationDelegate& delegate) {
    m_joint = std::make_unique<Joint>(
        [[KestrowindApplicationDelegate alloc] initWithDelegate:delegate toolkit:NSApp.delegate]);
    NSApp.delegate = m_joint->delegate;
}

void AppKitApplication::terminate() {
    [NSApp terminate:nil];
}

void AppKitApplication::replyToShouldTerminate() {
    [NSApp replyToApplicationShouldTerminate:YES];
}

} // namespace kestrowind
