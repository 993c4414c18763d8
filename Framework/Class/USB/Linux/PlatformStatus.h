// The results of platform calls. Linux has errno; the values here are those of IOKit, so that all
// code above the platform halves, and whoever reads its logs, deals with one vocabulary.
#pragma once

#include <cstdint>

namespace orv {

/// What a platform operation answers; 0 is success.
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

/// The status that names an error of the operating system; kIOReturnError for one without a
/// namesake.
PlatformStatus PlatformStatusFromErrno(int error) noexcept;

}  // namespace orv
