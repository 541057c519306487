#pragma once

#include <Availability.h>
#include <dispatch/dispatch.h>
#include <mach/mach.h>

#include <stddef.h>
#include <stdint.h>

typedef struct __CFDictionary* CFMutableDictionaryRef;
typedef const struct __CFDictionary* CFDictionaryRef;

typedef mach_port_t io_object_t;
typedef io_object_t io_connect_t;
typedef io_object_t io_service_t;

#define IO_OBJECT_NULL ((io_object_t)0)

typedef struct IONotificationPort* IONotificationPortRef;
typedef void (*IOServiceInterestCallback)(void* refcon, io_service_t service, uint32_t messageType,
                                          void* messageArgument);

extern "C" {
extern const mach_port_t kIOMainPortDefault API_AVAILABLE(macos(12.0));

CFMutableDictionaryRef IOServiceMatching(const char* name);
io_service_t IOServiceGetMatchingService(mach_port_t mainPort, CFDictionaryRef matching);
kern_return_t IOServiceOpen(io_service_t service, mach_port_t owningTask, uint32_t type,
                            io_connect_t* connect);
kern_return_t IOServiceClose(io_connect_t connect);
kern_return_t IOObjectRelease(io_object_t object);
kern_return_t IOConnectCallStructMethod(mach_port_t connection, uint32_t selector,
                                        const void* inputStruct, size_t inputStructCnt,
                                        void* outputStruct, size_t* outputStructCnt);
void IONotificationPortSetDispatchQueue(IONotificationPortRef port, dispatch_queue_t queue);
}
