#include "Helper/macOS/XPCListener.h"

#include "Helper/HelperLog.h"
#include "Helper/HelperService.h"
#import "Shared/HelperShared/FanSpeedArray.h"
#import "Shared/HelperShared/KestrowindHelperProtocol.h"

#include <atomic>
#include <map>
#include <string>

using kestrowind::CallerID;
using kestrowind::HelperService;

namespace {

// How long the helper waits for the last reply to leave before it ends all the same.
constexpr std::chrono::nanoseconds longestFarewell = std::chrono::milliseconds(500);

using Call = void (^)(HelperService& service);

/// Does a call on the service's thread, unless the caller makes too many or is out.
void admit(HelperService* service, CallerID caller, Call call) {
    dispatch_async(dispatch_get_main_queue(), ^{
        if (service->admitCall(caller))
            call(*service);
    });
}

} // namespace

/// What one connection exports.
@interface KestrowindCaller : NSObject <KestrowindHelperProtocol>
- (instancetype)initWithService:(HelperService*)service
                         caller:(CallerID)caller
                         finish:(void (^)(void))finish;
@end

@implementation KestrowindCaller {
    HelperService* _service;
    CallerID _caller;
    void (^_finish)(void);
}

- (instancetype)initWithService:(HelperService*)service
                         caller:(CallerID)caller
                         finish:(void (^)(void))finish {
    if ((self = [super init])) {
        _service = service;
        _caller = caller;
        _finish = finish;
    }
    return self;
}

- (void)setTargets:(NSArray<NSNumber*>*)targets reply:(void (^)(NSArray<NSNumber*>*))reply {
    const CallerID caller = _caller;
    admit(_service, caller, ^(HelperService& service) {
        const auto asked = kestrowind::fanSpeeds(targets);
        const auto applied = asked ? service.setTargets(caller, *asked)
                                   : std::unexpected(std::string("they are no list of numbers"));
        if (!applied)
            kestrowind::HelperLog::fault("targets refused: " + applied.error());
        // The protocol has no word for a refusal: what is applied now says enough.
        reply(kestrowind::fanSpeedArray(applied ? *applied : service.status().effectiveTargets));
    });
}

- (void)releaseControlWithReply:(void (^)(void))reply {
    admit(_service, _caller, ^(HelperService& service) {
        service.releaseControl();
        reply();
    });
}

- (void)statusWithReply:(void (^)(NSData*))reply {
    admit(_service, _caller, ^(HelperService& service) {
        const std::string document = kestrowind::encodeHelperStatus(service.status());
        reply([NSData dataWithBytes:document.data() length:document.size()]);
    });
}

- (void)uninstallWithReply:(void (^)(BOOL))reply {
    void (^finish)(void) = _finish;
    admit(_service, _caller, ^(HelperService& service) {
        reply(service.uninstall());
        finish();
    });
}

- (void)shutDownWithReply:(void (^)(void))reply {
    void (^finish)(void) = _finish;
    admit(_service, _caller, ^(HelperService& service) {
        service.releaseControl();
        reply();
        finish();
    });
}

@end

@interface KestrowindListenerDelegate : NSObject <NSXPCListenerDelegate>
- (instancetype)initWithAccept:(void (^)(NSXPCConnection*))accept;
@end

@implementation KestrowindListenerDelegate {
    void (^_accept)(NSXPCConnection*);
}

- (instancetype)initWithAccept:(void (^)(NSXPCConnection*))accept {
    if ((self = [super init]))
        _accept = accept;
    return self;
}

- (BOOL)listener:(NSXPCListener*)listener shouldAcceptNewConnection:(NSXPCConnection*)connection {
    _accept(connection);
    return YES;
}

@end

namespace kestrowind {

struct XPCListener::Objects {
    void accept(NSXPCConnection* connection);

    HelperService* service = nullptr;
    std::function<void()> finish;
    NSXPCListener* listener = nil;
    KestrowindListenerDelegate* delegate = nil; ///< the listener does not keep it
    dispatch_source_t ticks = nil;
    std::atomic<CallerID> lastCaller = 0;
    std::map<CallerID, NSXPCConnection*> connections;
};

XPCListener::XPCListener(std::function<void()> finish)
    : m_objects(std::make_unique<Objects>()) {
    m_objects->finish = std::move(finish);
}

XPCListener::~XPCListener() {
    setTicking(false);
    [m_objects->listener invalidate];
}

void XPCListener::open(HelperService& service, const char* machServiceName,
                       const char* requirement) {
    Objects* const objects = m_objects.get();
    objects->service = &service;
    m_objects->listener = [[NSXPCListener alloc] initWithMachServiceName:@(machServiceName)];
    m_objects->delegate =
        [[KestrowindListenerDelegate alloc] initWithAccept:^(NSXPCConnection* connection) {
            objects->accept(connection);
        }];
    m_objects->listener.delegate = m_objects->delegate;
    if (*requirement != '\0')
        [m_objects->listener setConnectionCodeSigningRequirement:@(requirement)];
    else
        HelperLog::fault("a build for development: anybody on this machine may drive its fans");
    [m_objects->listener resume];
}

// On a queue of the system's. What is queued before the connection is resumed comes first, and its
// end comes after all that it brought.
void XPCListener::Objects::accept(NSXPCConnection* connection) {
    const CallerID caller = ++lastCaller;
    __weak NSXPCConnection* weakConnection = connection;
    void (^finishAfterReplies)(void) = ^{
        void (^end)(void) = ^{
            finish();
        };
        [weakConnection scheduleSendBarrierBlock:^{
            dispatch_async(dispatch_get_main_queue(), end);
        }];
        dispatch_after(dispatch_time(DISPATCH_TIME_NOW, longestFarewell.count()),
                       dispatch_get_main_queue(), end);
    };
    connection.exportedInterface = makeHelperInterface();
    connection.exportedObject = [[KestrowindCaller alloc] initWithService:service
                                                                   caller:caller
                                                                   finish:finishAfterReplies];
    connection.invalidationHandler = ^{
        dispatch_async(dispatch_get_main_queue(), ^{
            connections.erase(caller);
            service->callerGone(caller);
        });
    };
    dispatch_async(dispatch_get_main_queue(), ^{
        connections.emplace(caller, connection);
        service->callerCame(caller);
    });
    [connection resume];
}

void XPCListener::hangUp(CallerID caller) {
    const auto found = m_objects->connections.find(caller);
    if (found == m_objects->connections.end())
        return;
    [found->second invalidate];
    m_objects->connections.erase(found);
}

void XPCListener::setTicking(bool isTicking) {
    if (isTicking == (m_objects->ticks != nil))
        return;
    if (!isTicking) {
        dispatch_source_cancel(m_objects->ticks);
        m_objects->ticks = nil;
        return;
    }
    m_objects->ticks =
        dispatch_source_create(DISPATCH_SOURCE_TYPE_TIMER, 0, 0, dispatch_get_main_queue());
    HelperService* const service = m_objects->service;
    constexpr std::chrono::nanoseconds interval = FanController::tickInterval;
    dispatch_source_set_timer(m_objects->ticks, dispatch_time(DISPATCH_TIME_NOW, interval.count()),
                              interval.count(), interval.count() / 10);
    dispatch_source_set_event_handler(m_objects->ticks, ^{
        service->tick();
    });
    dispatch_resume(m_objects->ticks);
}

} // namespace kestrowind
