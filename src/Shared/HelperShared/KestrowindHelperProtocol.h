#pragma once

// Objective-C, for the application and the helper on a Mac: the methods that travel between them.

#import <Foundation/Foundation.h>

/// The interface that the helper exports on its Mach service. The types below decide how each
/// message is written on the wire (its method type encoding): both programs must agree on them to
/// the letter, whatever their versions, so they never change.
@protocol KestrowindHelperProtocol

/// Per fan, in fan-index order: speeds in revolutions per minute as double-precision numbers. The
/// reply has those that the helper now applies.
- (void)setTargets:(NSArray<NSNumber*>*)targets reply:(void (^)(NSArray<NSNumber*>* applied))reply;

/// Replies when the fans are the system's again.
- (void)releaseControlWithReply:(void (^)(void))reply;

/// The status record as a JSON document; nil when there is none.
- (void)statusWithReply:(void (^)(NSData* document))reply;

- (void)uninstallWithReply:(void (^)(BOOL removed))reply;

- (void)shutDownWithReply:(void (^)(void))reply;

@end

/// A new interface object for KestrowindHelperProtocol. Arrays, numbers and data are among the
/// classes that it lets through by itself.
NSXPCInterface* makeHelperInterface(void);
