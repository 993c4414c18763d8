// Finds, opens and closes the connected mixers ("units"). A unit is a USB device with the maker's
// vendor id and the product id below, whichever model a caller names. Nothing is kept between
// exported calls: each looks at the bus again. All functions may run on any thread and on several
// at once.
#pragma once

#include <cstdint>

#include <TRX-SELVASetup/TRX-SELVASetup.h>

#include "BusLook.h"
#include "DeviceHandle.h"
#include "PlatformStatus.h"

namespace orv {

inline constexpr std::uint16_t kMakerUsbVendorId = MAKER_USB_VENDOR_ID;
inline constexpr std::uint16_t MIXER_USB_PRODUCT_ID = 31;

/// Looks at the bus for one exported call. Returns the number of connected units; 0 when the bus
/// cannot be read. The model is ignored.
std::int32_t CheckUSBAudio(ProductId productId, BusLook *look) noexcept;

/// Opens the unit at position n into a handle that must be null on entry. Positions count from 0;
/// on Linux in the order of the bus when it was looked at, on macOS in the present order of the
/// registry. Called by open_pipes only. Returns 0; kIOReturnError when there is no such unit or the
/// handle was not null (it is not touched then); else the system's status: on Linux for the unit's
/// node (the handle stays null), on macOS for the last device asked, which may be another one (the
/// handle holds the unit).
PlatformStatus openUSB(DeviceHandle *handle, std::uint32_t n, const BusLook &look) noexcept;

/// Sets the handle to null, then opens the unit at position n into it. Returns the result of
/// openUSB, and kIOReturnError for a null pointer. After 0, the caller closes the handle with
/// closeUSB. After anything else, the handle is not used, whatever it holds.
PlatformStatus open_pipes(DeviceHandle *handle, std::uint32_t n, const BusLook &look) noexcept;

/// Closes an open unit and sets the handle to null; leaves a null handle alone.
void closeUSB(DeviceHandle *handle) noexcept;

}  // namespace orv
