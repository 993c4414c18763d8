#pragma once

#include <CoreFoundation/CFBase.h>

typedef const struct __CFNumber *CFNumberRef;

enum CFNumberType : CFIndex {
  kCFNumberSInt8Type = 1,
  kCFNumberSInt16Type = 2,
  kCFNumberSInt32Type = 3,
  kCFNumberSInt64Type = 4,
  kCFNumberIntType = 9,
};

#ifdef __cplusplus
extern "C" {
#endif

CFNumberRef CFNumberCreate(CFAllocatorRef allocator, CFNumberType theType, const void *valuePtr);

#ifdef __cplusplus
}
#endif
