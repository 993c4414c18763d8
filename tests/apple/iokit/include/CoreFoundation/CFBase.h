// The plain types of the platform, and what all of its objects have in common.
#pragma once

typedef unsigned char UInt8;
typedef unsigned short UInt16;
typedef unsigned int UInt32;
typedef unsigned long long UInt64;
typedef signed int SInt32;

typedef struct UnsignedWide {
  UInt32 lo;
  UInt32 hi;
} UnsignedWide;
typedef UnsignedWide AbsoluteTime;

typedef signed long CFIndex;
typedef const void *CFTypeRef;
typedef const struct __CFAllocator *CFAllocatorRef;
typedef const struct __CFString *CFStringRef;

#ifdef __cplusplus
extern "C" {
#endif

extern const CFAllocatorRef kCFAllocatorDefault;

CFTypeRef CFRetain(CFTypeRef cf);
void CFRelease(CFTypeRef cf);

#ifdef __cplusplus
}
#endif
