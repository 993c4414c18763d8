#pragma once

#include <CoreFoundation/CFBase.h>

#ifdef __cplusplus
extern "C" {
#endif

/// A string that lives as long as the process: there is nothing to release.
#define CFSTR(cStr) __CFStringMakeConstantString("" cStr "")
CFStringRef __CFStringMakeConstantString(const char *cStr);

#ifdef __cplusplus
}
#endif
