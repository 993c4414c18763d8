// The results of platform calls. The values are those of IOKit, also for errors that Linux reports
// in errno, so that shared code has one set of values.
#pragma once

#include <cstdint>

namespace orv {

/// The result of a platform operation; 0 is success.
using PlatformStatus = std::int32_t;

inline constexpr PlatformStatus kIOReturnSuccess = 0;
inline constexpr auto kIOReturnError = static_cast<PlatformStatus>(0xE00002BC);
inline constexpr auto kIOReturnNoMemory = static_cast<PlatformStatus>(0xE00002BD);
inline constexpr auto kIOReturnNoResources = static_cast<PlatformStatus>(0xE00002BE);
inline constexpr auto kIOReturnNoDevice = static_cast<PlatformStatus>(0xE00002C0);
inline constexpr auto kIOReturnBadArgument = static_cast<PlatformStatus>(0xE00002C2);
inline constexpr auto kIOReturnExclusiveAccess = static_cast<PlatformStatus>(0xE00002C5);
inline constexpr auto kIOReturnIOError = static_cast<PlatformStatus>(0xE00002CA);
inline constexpr auto kIOReturnNotPermitted = static_cast<PlatformStatus>(0xE00002E2);
inline constexpr auto kIOReturnOverrun = static_cast<PlatformStatus>(0xE00002E8);
inline constexpr auto kIOReturnNotResponding = static_cast<PlatformStatus>(0xE00002ED);
inline constexpr auto kIOUSBPipeStalled = static_cast<PlatformStatus>(0xE000404F);
inline constexpr auto kIOUSBTransactionTimeout = static_cast<PlatformStatus>(0xE0004051);

/// The status for an errno value; kIOReturnError for one without a counterpart.
PlatformStatus PlatformStatusFromErrno(int error) noexcept;

}  // namespace orv
