// Reports the outcome of a thread's requests to the thread's observer. Any thread; all functions
// are about the calling one.
#pragma once

#include <cstdint>

#include <TRX-SELVASetup/Diagnostics.h>

#include "DeviceHandle.h"
#include "PlatformStatus.h"

namespace orv {

/// Where a unit is. Numbers that the platform does not have are 0.
struct UnitPlace {
  std::uint32_t bus = 0;
  std::uint32_t address = 0;
  std::uint32_t location = 0;
};

/// The place of an opened unit.
UnitPlace PlaceOf(DeviceHandle unit) noexcept;

/// The reported parts of a request.
struct ObservedRequest {
  std::int32_t kind = ORV_REQUEST_OPEN;
  std::uint16_t index = 0;
  std::uint16_t value = 0;
};

/// Replaces the observer; null for none.
void SetRequestObserver(ORVRequestObserver observer, void *context) noexcept;

/// Whether the thread has an observer: check this before making a report. It reads only one pointer
/// of the thread.
bool IsObserved() noexcept;

/// Calls the observer. Requests that the observer itself causes are not reported.
void Report(const ObservedRequest &request, const UnitPlace &place, std::int32_t outcome) noexcept;

/// The outcome to report for a status of the platform.
std::int32_t OutcomeOf(PlatformStatus status) noexcept;

}  // namespace orv
