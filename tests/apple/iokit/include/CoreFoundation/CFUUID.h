#pragma once

#include <CoreFoundation/CFBase.h>

typedef const struct __CFUUID *CFUUIDRef;

typedef struct {
  UInt8 byte0;
  UInt8 byte1;
  UInt8 byte2;
  UInt8 byte3;
  UInt8 byte4;
  UInt8 byte5;
  UInt8 byte6;
  UInt8 byte7;
  UInt8 byte8;
  UInt8 byte9;
  UInt8 byte10;
  UInt8 byte11;
  UInt8 byte12;
  UInt8 byte13;
  UInt8 byte14;
  UInt8 byte15;
} CFUUIDBytes;

#ifdef __cplusplus
extern "C" {
#endif

/// Lives as long as the process: there is nothing to release.
CFUUIDRef CFUUIDGetConstantUUIDWithBytes(CFAllocatorRef alloc, UInt8 byte0, UInt8 byte1,
                                         UInt8 byte2, UInt8 byte3, UInt8 byte4, UInt8 byte5,
                                         UInt8 byte6, UInt8 byte7, UInt8 byte8, UInt8 byte9,
                                         UInt8 byte10, UInt8 byte11, UInt8 byte12, UInt8 byte13,
                                         UInt8 byte14, UInt8 byte15);

CFUUIDBytes CFUUIDGetUUIDBytes(CFUUIDRef uuid);

#ifdef __cplusplus
}
#endif
