#pragma once

// Wanted by headers of the toolkit that tests use.

typedef struct os_activity_s* os_activity_t;
typedef struct {
    unsigned long long opaque[2];
} os_activity_scope_state_s;

extern "C" {
extern struct os_activity_s _os_activity_current;
void* os_retain(void* object);
void os_release(void* object);
void os_activity_scope_enter(os_activity_t activity, os_activity_scope_state_s* state);
void os_activity_scope_leave(os_activity_scope_state_s* state);
}
