#include "Platform/macOS/AppKitApplication.h"

#import <AppKit/AppKit.h>

#include <QCoreApplication>
#include <QTimer>

#include <chrono>
#include <utility>

using kestrowind::ApplicationDelegate;
using namespace std::chrono_literals;

namespace {

/// A system that has not said by now how the application was started will not.
constexpr std::chrono::milliseconds launchPatience = 3s;

/// While the system tells that the launch is over, the event that asked for it is the current one.
bool isLaunchAsLoginItem() {
    NSAppleEventDescriptor* event = NSAppleEventManager.sharedAppleEventManager.currentAppleEvent;
    return event.eventID == kAEOpenApplication &&
           [event paramDescriptorForKeyword:keyAEPropData].enumCodeValue ==
               keyAELaunchedAsLogInItem;
}

} // namespace

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

void AppKitApplication::whenLaunched(const std::function<void(bool isLoginItem)>& launched) {
    m_launched = launched;
    const auto tell = [this](bool isLoginItem) {
        if (const auto waiting = std::exchange(m_launched, nullptr))
            waiting(isLoginItem);
    };
    [NSNotificationCenter.defaultCenter
        addObserverForName:NSApplicationDidFinishLaunchingNotification
                    object:NSApp
                     queue:nil
                usingBlock:^(NSNotification* /*notification*/) {
                    tell(isLaunchAsLoginItem());
                }];
    QTimer::singleShot(launchPatience, QCoreApplication::instance(), [tell] { tell(false); });
}

void AppKitApplication::terminate() {
    [NSApp terminate:nil];
}

void AppKitApplication::replyToShouldTerminate() {
    [NSApp replyToApplicationShouldTerminate:YES];
}

} // namespace kestrowind
