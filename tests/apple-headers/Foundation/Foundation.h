#pragma once

#include <Availability.h>
#include <dispatch/dispatch.h>
#include <stddef.h>
#include <stdint.h>

// How wide a BOOL is depends on the processor; the compiler knows.
#if __OBJC_BOOL_IS_BOOL
typedef bool BOOL;
#else
typedef signed char BOOL;
#endif
#define YES __objc_yes
#define NO __objc_no
#define nil nullptr

#if __LP64__
typedef long NSInteger;
typedef unsigned long NSUInteger;
#endif

#define NS_ENUM(type, name)                                                                        \
    enum name : type name;                                                                         \
    enum name : type
// In C++ what is combined stays a number.
#define NS_OPTIONS(type, name)                                                                     \
    type name;                                                                                     \
    enum : type

typedef struct objc_selector* SEL;

@protocol NSObject
- (BOOL)respondsToSelector:(SEL)selector;
- (BOOL)conformsToProtocol:(Protocol*)protocol;
- (BOOL)isKindOfClass:(Class)kind;
@end

__attribute__((objc_root_class))
@interface NSObject<NSObject>
+ (instancetype)alloc;
- (instancetype)init;
+ (Class)class;
- (BOOL)respondsToSelector:(SEL)selector;
- (id)forwardingTargetForSelector:(SEL)selector;
@end

typedef struct {
    unsigned long state;
    id __unsafe_unretained* itemsPtr;
    unsigned long* mutationsPtr;
    unsigned long extra[5];
} NSFastEnumerationState;

@protocol NSFastEnumeration
- (NSUInteger)countByEnumeratingWithState:(NSFastEnumerationState*)state
                                  objects:(id __unsafe_unretained[])buffer
                                    count:(NSUInteger)length;
@end

@interface NSString : NSObject
+ (instancetype)stringWithUTF8String:(const char*)bytes; // @( )
- (BOOL)isEqualToString:(NSString*)string;
@end

@interface NSURL : NSObject
+ (NSURL*)fileURLWithPath:(NSString*)path;
@end

@interface NSData : NSObject
+ (instancetype)dataWithBytes:(const void*)bytes length:(NSUInteger)length;
@end

@interface NSNumber : NSObject
+ (NSNumber*)numberWithDouble:(double)value;
@property(readonly) double doubleValue;
@end

@interface NSArray<__covariant ObjectType> : NSObject <NSFastEnumeration>
@property(readonly) NSUInteger count;
@property(readonly) ObjectType firstObject;
+ (instancetype)arrayWithObjects:(const ObjectType[])objects count:(NSUInteger)count; // @[ ]
@end

@interface NSMutableArray<ObjectType> : NSArray <ObjectType>
+ (instancetype)arrayWithCapacity:(NSUInteger)capacity;
- (void)addObject:(ObjectType)object;
@end

@interface NSError : NSObject
@property(readonly, copy) NSString* localizedDescription;
@end

@interface NSBundle : NSObject
@property(class, readonly, strong) NSBundle* mainBundle;
@property(readonly, copy) NSString* bundleIdentifier;
- (id)objectForInfoDictionaryKey:(NSString*)key;
- (NSString*)pathForResource:(NSString*)name ofType:(NSString*)extension;
@end

typedef NS_OPTIONS(uint64_t, NSActivityOptions) {
    NSActivityUserInitiatedAllowingIdleSystemSleep = 0x00efffffULL,
};

@interface NSProcessInfo : NSObject
@property(class, readonly, strong) NSProcessInfo* processInfo;
@property(readonly, copy) NSString* operatingSystemVersionString;
- (id<NSObject>)beginActivityWithOptions:(NSActivityOptions)options reason:(NSString*)reason;
- (void)endActivity:(id<NSObject>)activity;
@end

@interface NSNotification : NSObject
@end

@class NSOperationQueue;
@interface NSNotificationCenter : NSObject
@property(class, readonly, strong) NSNotificationCenter* defaultCenter;
- (id<NSObject>)addObserverForName:(NSString*)name
                            object:(id)object
                             queue:(NSOperationQueue*)queue
                        usingBlock:(void (^)(NSNotification* notification))block;
@end

typedef uint32_t FourCharCode;
enum : FourCharCode {
    kAEOpenApplication = 'oapp',
    keyAEPropData = 'prdt',
    keyAELaunchedAsLogInItem = 'lgit',
};

@interface NSAppleEventDescriptor : NSObject
@property(readonly) FourCharCode eventID;
@property(readonly) FourCharCode enumCodeValue;
- (NSAppleEventDescriptor*)paramDescriptorForKeyword:(FourCharCode)keyword;
@end

@interface NSAppleEventManager : NSObject
+ (NSAppleEventManager*)sharedAppleEventManager;
@property(readonly, retain) NSAppleEventDescriptor* currentAppleEvent;
@end

@interface NSUserDefaults : NSObject
- (instancetype)initWithSuiteName:(NSString*)suiteName;
- (NSString*)stringForKey:(NSString*)key;
@end

@interface NSXPCInterface : NSObject
+ (NSXPCInterface*)interfaceWithProtocol:(Protocol*)protocol;
@end

typedef NS_OPTIONS(NSUInteger, NSXPCConnectionOptions) {
    NSXPCConnectionPrivileged = 1UL << 12UL,
};

@interface NSXPCConnection : NSObject
- (instancetype)initWithMachServiceName:(NSString*)name options:(NSXPCConnectionOptions)options;
@property(strong) NSXPCInterface* remoteObjectInterface;
@property(strong) NSXPCInterface* exportedInterface;
@property(strong) id exportedObject;
@property(copy) void (^invalidationHandler)(void);
- (id)remoteObjectProxyWithErrorHandler:(void (^)(NSError* error))handler;
- (void)resume;
- (void)invalidate;
- (void)scheduleSendBarrierBlock:(void (^)(void))block;
- (void)setCodeSigningRequirement:(NSString*)requirement API_AVAILABLE(macos(13.0));
@end

@class NSXPCListener;
@protocol NSXPCListenerDelegate <NSObject>
@optional
- (BOOL)listener:(NSXPCListener*)listener shouldAcceptNewConnection:(NSXPCConnection*)newConnection;
@end

@interface NSXPCListener : NSObject
- (instancetype)initWithMachServiceName:(NSString*)name;
@property(weak) id<NSXPCListenerDelegate> delegate;
- (void)setConnectionCodeSigningRequirement:(NSString*)requirement API_AVAILABLE(macos(13.0));
- (void)resume;
- (void)invalidate;
@end
