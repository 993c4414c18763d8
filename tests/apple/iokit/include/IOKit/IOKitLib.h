// The registry of devices and how to walk it.
#pragma once

#include <Availability.h>
#include <CoreFoundation/CFDictionary.h>
#include <IOKit/IOReturn.h>
#include <IOKit/IOTypes.h>

typedef void (*IOAsyncCallback1)(void *refcon, IOReturn result, void *arg0);

#ifdef __cplusplus
extern "C" {
#endif

kern_return_t IOMainPort(mach_port_t bootstrapPort, mach_port_t *mainPort) AVAILABLE_SINCE_12;
kern_return_t IOMasterPort(mach_port_t bootstrapPort, mach_port_t *mainPort) DEPRECATED_SINCE_12;

CFMutableDictionaryRef IOServiceMatching(const char *name);

/// Takes over the caller's reference to the dictionary, whatever it answers.
kern_return_t IOServiceGetMatchingServices(mach_port_t mainPort, CFDictionaryRef matching,
                                           io_iterator_t *existing);

io_object_t IOIteratorNext(io_iterator_t iterator);
kern_return_t IOObjectRelease(io_object_t object);

#ifdef __cplusplus
}
#endif
