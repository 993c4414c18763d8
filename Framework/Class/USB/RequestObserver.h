// Tells the observer of a thread what becomes of the requests that the thread makes. Any thread;
// what is here belongs to the calling one.
#pragma once

#include <cstdint>

#include <TRX-SELVASetup/Diagnostics.h>

#include "DeviceHandle.h"
#include "PlatformStatus.h"

namespace orv {

/// Where a unit is. A platform leaves at 0 what it does not have.
struct UnitPlace {
  std::uint32_t bus = 0;
  std::uint32_t address = 0;
  std::uint32_t location = 0;
};

/// The place of an opened unit.
UnitPlace PlaceOf(DeviceHandle unit) noexcept;

/// One request, as it is reported.
struct ObservedRequest {
  std::int32_t kind = ORV_REQUEST_OPEN;
  std::uint16_t index = 0;
  std::uint16_t value = 0;
};

/// Puts an observer in the place of the one before; null for none.
void SetRequestObserver(ORVRequestObserver observer, void *context) noexcept;

/// Whether anybody wants to know: ask before a report is put together. It is no more than a look at
/// a pointer of the thread.
bool IsObserved() noexcept;

/// Tells the observer. What the observer causes itself is not reported to it.
void Report(const ObservedRequest &request, const UnitPlace &place, std::int32_t outcome) noexcept;

/// What a person calls a failure of the platform.
std::int32_t OutcomeOf(PlatformStatus status) noexcept;

}  // namespace orv
