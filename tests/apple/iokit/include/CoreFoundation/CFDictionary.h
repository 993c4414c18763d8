#pragma once

#include <CoreFoundation/CFBase.h>

typedef const struct __CFDictionary *CFDictionaryRef;
typedef struct __CFDictionary *CFMutableDictionaryRef;

#ifdef __cplusplus
extern "C" {
#endif

/// Keeps references of its own to key and value.
void CFDictionarySetValue(CFMutableDictionaryRef theDict, const void *key, const void *value);

#ifdef __cplusplus
}
#endif
