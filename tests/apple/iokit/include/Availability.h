// The oldest system version that a build is meant for, and what that means for a declaration. A
// compiler for the platform knows the version; elsewhere it is 12 unless the build says otherwise.
#pragma once

#ifndef __MAC_OS_X_VERSION_MIN_REQUIRED
#ifdef __ENVIRONMENT_MAC_OS_X_VERSION_MIN_REQUIRED__
#define __MAC_OS_X_VERSION_MIN_REQUIRED __ENVIRONMENT_MAC_OS_X_VERSION_MIN_REQUIRED__
#else
#define __MAC_OS_X_VERSION_MIN_REQUIRED 120000
#endif
#endif

// A compiler for the platform warns by itself: of what comes too late and of what has a new name.
// For any other the same is said in its own words.
#if defined(__APPLE__)
#define AVAILABLE_SINCE_12 __attribute__((availability(macos, introduced = 12.0)))
#define DEPRECATED_SINCE_12 \
  __attribute__((availability(macos, introduced = 10.0, deprecated = 12.0)))
#elif __MAC_OS_X_VERSION_MIN_REQUIRED >= 120000
#define AVAILABLE_SINCE_12
#define DEPRECATED_SINCE_12 __attribute__((deprecated("renamed in version 12")))
#else
#define AVAILABLE_SINCE_12 __attribute__((deprecated("not there before version 12")))
#define DEPRECATED_SINCE_12
#endif
