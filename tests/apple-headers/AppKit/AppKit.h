#pragma once

#import <Foundation/Foundation.h>

#include <sys/types.h>

typedef NS_ENUM(NSUInteger, NSApplicationTerminateReply) {
    NSTerminateNow = 1,
    NSTerminateLater = 2,
};

typedef NS_ENUM(NSInteger, NSApplicationActivationPolicy) {
    NSApplicationActivationPolicyRegular,
    NSApplicationActivationPolicyAccessory,
};

@class NSApplication;

@protocol NSApplicationDelegate <NSObject>
@optional
- (NSApplicationTerminateReply)applicationShouldTerminate:(NSApplication*)sender;
- (BOOL)applicationShouldHandleReopen:(NSApplication*)sender
                    hasVisibleWindows:(BOOL)hasVisibleWindows;
@end

@interface NSApplication : NSObject
@property(weak) id<NSApplicationDelegate> delegate;
- (NSApplicationActivationPolicy)activationPolicy;
- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)policy;
- (void)activateIgnoringOtherApps:(BOOL)ignoresOthers;
- (void)terminate:(id)sender;
- (void)replyToApplicationShouldTerminate:(BOOL)shouldTerminate;
@end

extern "C" NSApplication* NSApp;
extern "C" NSString* const NSApplicationDidFinishLaunchingNotification;

struct CGPoint {
    double x, y;
};
struct CGSize {
    double width, height;
};
struct CGRect {
    CGPoint origin;
    CGSize size;
};
typedef double CGFloat;
typedef CGSize NSSize;
typedef CGRect NSRect;
typedef struct CGImage* CGImageRef;
extern "C" void CGImageRelease(CGImageRef image);
inline NSSize NSMakeSize(CGFloat width, CGFloat height) {
    return {width, height};
}
inline CGFloat NSMaxY(NSRect rect) {
    return rect.origin.y + rect.size.height;
}

typedef NS_OPTIONS(unsigned long long, NSEventMask) {
    NSEventMaskLeftMouseDown = 1ULL << 1,
    NSEventMaskRightMouseDown = 1ULL << 3,
    NSEventMaskOtherMouseDown = 1ULL << 25,
};

@interface NSEvent : NSObject
+ (id)addGlobalMonitorForEventsMatchingMask:(NSEventMask)mask
                                    handler:(void (^)(NSEvent* event))block;
+ (void)removeMonitor:(id)eventMonitor;
@end

@interface NSImage : NSObject
- (instancetype)initWithCGImage:(CGImageRef)cgImage size:(NSSize)size;
- (void)setTemplate:(BOOL)isTemplate;
@end

@interface NSScreen : NSObject
@property(class, readonly, copy) NSArray<NSScreen*>* screens;
@property(readonly) NSRect frame;
@end

typedef NS_OPTIONS(NSUInteger, NSWindowStyleMask) {
    NSWindowStyleMaskNonactivatingPanel = 1 << 7,
};
typedef NS_OPTIONS(NSUInteger, NSWindowCollectionBehavior) {
    NSWindowCollectionBehaviorCanJoinAllSpaces = 1 << 0,
    NSWindowCollectionBehaviorFullScreenAuxiliary = 1 << 8,
};
typedef NSInteger NSWindowLevel;
static const NSWindowLevel NSPopUpMenuWindowLevel = 101;

@interface NSWindow : NSObject
@property NSWindowStyleMask styleMask;
@property NSWindowCollectionBehavior collectionBehavior;
@property NSWindowLevel level;
@property BOOL hidesOnDeactivate;
- (void)makeKeyAndOrderFront:(id)sender;
- (NSRect)convertRectToScreen:(NSRect)rect;
@end

@interface NSPanel : NSWindow
@property BOOL becomesKeyOnlyIfNeeded;
@end

@interface NSView : NSObject
@property(readonly, assign) NSWindow* window;
@property NSRect bounds;
@property(copy) NSString* toolTip;
@property(copy) NSString* accessibilityLabel;
- (NSRect)convertRect:(NSRect)rect toView:(NSView*)view;
@end

typedef NS_ENUM(NSUInteger, NSImageScaling) {
    NSImageScaleNone = 2,
};

@interface NSStatusBarButton : NSView
@property(strong) NSImage* image;
@property NSImageScaling imageScaling;
@property(weak) id target;
@property SEL action;
- (NSInteger)sendActionOn:(NSEventMask)mask;
@end

@interface NSStatusItem : NSObject
@property(readonly, strong) NSStatusBarButton* button;
@end

static const CGFloat NSVariableStatusItemLength = -1;

@interface NSStatusBar : NSObject
@property(class, readonly, strong) NSStatusBar* systemStatusBar;
- (NSStatusItem*)statusItemWithLength:(CGFloat)length;
- (void)removeStatusItem:(NSStatusItem*)item;
@end

@interface NSRunningApplication : NSObject
+ (NSArray<NSRunningApplication*>*)runningApplicationsWithBundleIdentifier:(NSString*)identifier;
@property(readonly) pid_t processIdentifier;
@property(readonly, getter=isTerminated) BOOL terminated;
- (BOOL)terminate;
- (BOOL)forceTerminate;
@end
