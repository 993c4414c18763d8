// Ports: the kernel's names for what a task may talk to. Each name is counted.
#pragma once

typedef int kern_return_t;
typedef unsigned int mach_port_t;
typedef mach_port_t mach_port_name_t;
typedef mach_port_t ipc_space_t;

#define KERN_SUCCESS 0
#define KERN_INVALID_NAME 15
#define KERN_INVALID_TASK 16

#define MACH_PORT_NULL 0

#ifdef __cplusplus
extern "C" {
#endif

extern mach_port_t mach_task_self_;
#define mach_task_self() mach_task_self_

kern_return_t mach_port_deallocate(ipc_space_t task, mach_port_name_t name);

#ifdef __cplusplus
}
#endif
