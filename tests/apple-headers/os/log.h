#pragma once

#include <stdint.h>

#ifdef __OBJC__
@protocol OS_os_log
@end
typedef id<OS_os_log> os_log_t;
#else
typedef struct os_log_s* os_log_t;
#endif

typedef uint8_t os_log_type_t;
#define OS_LOG_TYPE_DEFAULT ((os_log_type_t)0x00)
#define OS_LOG_TYPE_INFO ((os_log_type_t)0x01)
#define OS_LOG_TYPE_DEBUG ((os_log_type_t)0x02)
#define OS_LOG_TYPE_ERROR ((os_log_type_t)0x10)
#define OS_LOG_TYPE_FAULT ((os_log_type_t)0x11)

extern "C" os_log_t os_log_create(const char* subsystem, const char* category);

// A macro there too, which has the compiler check the arguments against the format.
#define os_log_with_type(log, type, format, ...)                                                   \
    ((void)(log), (void)(type), (void)__builtin_os_log_format_buffer_size(format, ##__VA_ARGS__))
