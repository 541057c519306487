#pragma once

#include <stdint.h>

// Under ARC these are objects, in C++ plain pointers.
#ifdef __OBJC__
@protocol OS_dispatch_object
@end
typedef id<OS_dispatch_object> dispatch_object_t;
#else
typedef struct dispatch_object_s* dispatch_object_t;
#endif
typedef dispatch_object_t dispatch_queue_t;
typedef dispatch_object_t dispatch_source_t;
typedef const struct dispatch_source_type_s* dispatch_source_type_t;
typedef uint64_t dispatch_time_t;
#ifdef __BLOCKS__
typedef void (^dispatch_block_t)(void);
#endif
typedef void (*dispatch_function_t)(void*);

#define DISPATCH_TIME_NOW (0ull)

extern "C" {
extern struct dispatch_queue_s _dispatch_main_q;
extern const struct dispatch_source_type_s _dispatch_source_type_read;
extern const struct dispatch_source_type_s _dispatch_source_type_timer;

[[noreturn]] void dispatch_main(void);
void dispatch_resume(dispatch_object_t object);
void dispatch_set_context(dispatch_object_t object, void* context);
dispatch_time_t dispatch_time(dispatch_time_t when, int64_t delta);
dispatch_source_t dispatch_source_create(dispatch_source_type_t type, uintptr_t handle,
                                         uintptr_t mask, dispatch_queue_t queue);
void dispatch_source_cancel(dispatch_source_t source);
void dispatch_source_set_event_handler_f(dispatch_source_t source, dispatch_function_t handler);
void dispatch_source_set_timer(dispatch_source_t source, dispatch_time_t start, uint64_t interval,
                               uint64_t leeway);
#ifdef __BLOCKS__
void dispatch_after(dispatch_time_t when, dispatch_queue_t queue, dispatch_block_t block);
void dispatch_async(dispatch_queue_t queue, dispatch_block_t block);
void dispatch_source_set_event_handler(dispatch_source_t source, dispatch_block_t handler);
#endif
}

#define DISPATCH_SOURCE_TYPE_READ (&_dispatch_source_type_read)
#define DISPATCH_SOURCE_TYPE_TIMER (&_dispatch_source_type_timer)
#ifdef __OBJC__
#define dispatch_get_main_queue() ((__bridge dispatch_queue_t)(void*)&_dispatch_main_q)
#else
#define dispatch_get_main_queue() ((dispatch_queue_t)&_dispatch_main_q)
#endif
