// The way every family and every query reaches the mixers: count once, then open each by position,
// act, close. A unit that does not open, for whatever reason, is skipped in silence; so is one
// unplugged since the count.
#pragma once

#include <cstdint>

#include "USBDevice.h"
#include "VendorRequest.h"

namespace orv {

/// Whether the units behind this one are to be visited too.
enum class Visit { kNext, kStop };

/// Opens each of the first `count` units in turn, calls `visit` with its handle, and closes it.
/// `visit` returns a Visit.
template <typename Visitor>
void VisitUnits(std::int32_t count, Visitor visit) {
  for (std::int32_t i = 0; i < count; ++i) {
    DeviceHandle unit = nullptr;
    if (open_pipes(&unit, static_cast<std::uint32_t>(i)) != kIOReturnSuccess) continue;
    const Visit next = visit(unit);
    closeUSB(&unit);
    if (next == Visit::kStop) return;
  }
}

/// Sends one write request to every connected unit; what the units answer does not matter. Returns
/// the number of units counted at the start, for a caller that visits them again.
std::int32_t ApplyToEveryUnit(ProductId productId, const auto &request, std::uint16_t value) {
  const std::int32_t count = CheckUSBAudio(productId);
  VisitUnits(count, [&](DeviceHandle unit) {
    request(unit, value);
    return Visit::kNext;
  });
  return count;
}

}  // namespace orv
