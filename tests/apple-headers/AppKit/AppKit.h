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

@interface NSRunningApplication : NSObject
+ (NSArray<NSRunningApplication*>*)runningApplicationsWithBundleIdentifier:(NSString*)identifier;
@property(readonly) pid_t processIdentifier;
@property(readonly, getter=isTerminated) BOOL terminated;
- (BOOL)terminate;
- (BOOL)forceTerminate;
@end
