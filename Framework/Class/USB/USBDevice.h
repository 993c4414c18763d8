// Finding, opening and closing the connected mixers ("units"). A unit is a USB device with the
// maker's vendor id and the one product id below, whichever model a caller names. Nothing is kept
// between exported calls: each looks at the bus afresh. All functions may run on any thread and on
// several at once.
#pragma once

#include <cstdint>

#include <TRX-SELVASetup/TRX-SELVASetup.h>

#include "BusLook.h"
#include "DeviceHandle.h"
#include "PlatformStatus.h"

namespace orv {

inline constexpr std::uint16_t kMakerUsbVendorId = MAKER_USB_VENDOR_ID;
inline constexpr std::uint16_t MIXER_USB_PRODUCT_ID = 31;

/// Looks at the bus for the length of one exported call. Returns the number of connected units; 0
/// when the bus cannot be looked at. The model does not matter.
std::int32_t CheckUSBAudio(ProductId productId, BusLook *look) noexcept;

/// Opens the unit at position n (0-based; on Linux in the order of the bus as the look saw it, on
/// macOS of the registry as it is now) into a handle that must be null on entry. Called by
/// open_pipes only. Returns 0, or kIOReturnError when there is no such unit or the handle was not
/// null (it is left alone then), or what the system said: on Linux of the unit's node (the handle
/// stays null), on macOS of the device that was looked at last, which may be another one (the
/// handle holds the unit).
PlatformStatus openUSB(DeviceHandle *handle, std::uint32_t n, const BusLook &look) noexcept;

/// Sets the handle to null, then opens the unit at position n into it. Returns what openUSB
/// returns, and kIOReturnError for a null pointer. After 0 the handle is the caller's to close with
/// closeUSB; after anything else it is passed over, whatever it holds.
PlatformStatus open_pipes(DeviceHandle *handle, std::uint32_t n, const BusLook &look) noexcept;

/// Closes an open unit and sets the handle to null; leaves a null handle alone.
void closeUSB(DeviceHandle *handle) noexcept;

}  // namespace orv
