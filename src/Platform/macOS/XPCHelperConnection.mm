#include "Platform/macOS/XPCHelperConnection.h"

#import "Shared/HelperShared/FanSpeedArray.h"
#import "Shared/HelperShared/KestrowindHelperProtocol.h"
#include "Shared/HelperShared/SigningRequirements.h"

namespace kestrowind {

using namespace Qt::StringLiterals;

struct XPCHelperConnection::Link : std::enable_shared_from_this<Link> {
    explicit Link(NSXPCConnection* connection)
        : connection(connection) {}

    /// The helper's end; nil, after its error handler was called, when it is no such thing.
    id<KestrowindHelperProtocol> proxy(const ErrorHandler& error) {
        if (!isResumed) {
            isResumed = true;
            [connection resume];
        }
        const ErrorHandler whileOpen = guarded(error);
        id proxy = [connection remoteObjectProxyWithErrorHandler:^(NSError* failure) {
            whileOpen(QString::fromNSString(failure.localizedDescription));
        }];
        if ([proxy conformsToProtocol:@protocol(KestrowindHelperProtocol)])
            return proxy;
        error(u"the remote object does not speak the helper's protocol"_s);
        return nil;
    }

    /// The same handler, but not after the connection has gone.
    template <class... Values>
    std::function<void(Values...)> guarded(std::function<void(Values...)> handler) {
        return [link = weak_from_this(), handler = std::move(handler)](Values... values) {
            if (link.lock())
                handler(std::forward<Values>(values)...);
        };
    }

    NSXPCConnection* connection;
    bool isResumed = false;
};

XPCHelperConnection::XPCHelperConnection(const QString& machServiceName)
    : m_link(std::make_shared<Link>([[NSXPCConnection alloc]
          initWithMachServiceName:machServiceName.toNSString()
                          options:NSXPCConnectionPrivileged])) {
    m_link->connection.remoteObjectInterface = makeHelperInterface();
    if (*SigningRequirements::helper != '\0')
        [m_link->connection setCodeSigningRequirement:@(SigningRequirements::helper)];
}

XPCHelperConnection::~XPCHelperConnection() {
    NSXPCConnection* connection = m_link->connection;
    m_link.reset();
    [connection invalidate];
}

void XPCHelperConnection::setInvalidationHandler(std::function<void()> handler) {
    const auto whileOpen = m_link->guarded(std::move(handler));
    m_link->connection.invalidationHandler = ^{
        whileOpen();
    };
}

void XPCHelperConnection::setTargets(const std::vector<double>& targets,
                                     Reply<std::vector<double>> reply, ErrorHandler error) {
    const auto replied = m_link->guarded(std::move(reply));
    const auto failed = m_link->guarded(error);
    [m_link->proxy(error) setTargets:fanSpeedArray(targets)
                               reply:^(NSArray<NSNumber*>* applied) {
                                   if (auto numbers = fanSpeeds(applied))
                                       replied(std::move(*numbers));
                                   else
                                       failed(u"the reply is no list of numbers"_s);
                               }];
}

void XPCHelperConnection::releaseControl(Reply<> reply, ErrorHandler error) {
    const auto replied = m_link->guarded(std::move(reply));
    [m_link->proxy(error) releaseControlWithReply:^{
        replied();
    }];
}

void XPCHelperConnection::status(Reply<std::optional<QByteArray>> reply, ErrorHandler error) {
    const auto replied = m_link->guarded(std::move(reply));
    [m_link->proxy(error) statusWithReply:^(NSData* document) {
        replied(document ? std::optional(QByteArray::fromNSData(document)) : std::nullopt);
    }];
}

void XPCHelperConnection::uninstall(Reply<bool> reply, ErrorHandler error) {
    const auto replied = m_link->guarded(std::move(reply));
    [m_link->proxy(error) uninstallWithReply:^(BOOL removed) {
        replied(removed);
    }];
}

void XPCHelperConnection::shutDown(Reply<> reply, ErrorHandler error) {
    const auto replied = m_link->guarded(std::move(reply));
    [m_link->proxy(error) shutDownWithReply:^{
        replied();
    }];
}

} // namespace kestrowind
