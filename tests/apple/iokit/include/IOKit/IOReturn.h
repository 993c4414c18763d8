// Results of IOKit: a system, a subsystem and a code in one number.
#pragma once

#include <mach/mach.h>

typedef kern_return_t IOReturn;

#define err_system(x) ((signed)((((unsigned)(x)) & 0x3f) << 26))
#define err_sub(x) (((x)&0xfff) << 14)

#define sys_iokit err_system(0x38)
#define sub_iokit_common err_sub(0)
#define sub_iokit_usb err_sub(1)

#define iokit_common_err(return ) (sys_iokit | sub_iokit_common | return )

#define kIOReturnSuccess KERN_SUCCESS
#define kIOReturnError iokit_common_err(0x2bc)
#define kIOReturnNoMemory iokit_common_err(0x2bd)
#define kIOReturnNoResources iokit_common_err(0x2be)
#define kIOReturnNoDevice iokit_common_err(0x2c0)
#define kIOReturnBadArgument iokit_common_err(0x2c2)
#define kIOReturnExclusiveAccess iokit_common_err(0x2c5)
#define kIOReturnUnsupported iokit_common_err(0x2c7)
#define kIOReturnIOError iokit_common_err(0x2ca)
#define kIOReturnNotOpen iokit_common_err(0x2cd)
#define kIOReturnNotPermitted iokit_common_err(0x2e2)
#define kIOReturnOverrun iokit_common_err(0x2e8)
#define kIOReturnAborted iokit_common_err(0x2eb)
#define kIOReturnNotResponding iokit_common_err(0x2ed)
