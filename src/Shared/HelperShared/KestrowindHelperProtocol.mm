#import "Shared/HelperShared/KestrowindHelperProtocol.h"

NSXPCInterface* makeHelperInterface(void) {
    return [NSXPCInterface interfaceWithProtocol:@protocol(KestrowindHelperProtocol)];
}
