#pragma once

typedef int kern_return_t;
typedef unsigned int mach_port_t;

extern "C" {
extern mach_port_t mach_task_self_;
}
#define mach_task_self() mach_task_self_
