// How every setting and every query reaches the mixers: look once, then open each by position, act,
// close. A unit that does not open is skipped, for whatever reason; so is one unplugged since the
// look.
#pragma once

#include <cstdint>

#include "USBDevice.h"
#include "VendorRequest.h"

namespace orv {

/// The units that one exported call finds. The constructor looks at the bus; the units can then be
/// visited several times. Must not outlive the call.
class ConnectedUnits {
 public:
  explicit ConnectedUnits(ProductId productId) noexcept
      : count_(CheckUSBAudio(productId, &look_)) {}

  std::int32_t Count() const { return count_; }

  /// Opens the unit at a position, calls `use` with its handle, and closes it. Returns whether it
  /// could be opened.
  template <typename Use>
  bool WithUnit(std::int32_t position, Use use) const {
    DeviceHandle unit = nullptr;
    const PlatformStatus status = open_pipes(&unit, static_cast<std::uint32_t>(position), look_);
    if (status != kIOReturnSuccess) return false;
    use(unit);
    closeUSB(&unit);
    return true;
  }

 private:
  BusLook look_;
  std::int32_t count_;
};

/// Whether to visit the units after this one.
enum class Visit { kNext, kStop };

/// Opens each unit in turn, calls `visit` with its handle, and closes it. `visit` returns a Visit.
template <typename Visitor>
void VisitUnits(const ConnectedUnits &units, Visitor visit) {
  Visit next = Visit::kNext;
  for (std::int32_t i = 0; i < units.Count() && next == Visit::kNext; ++i) {
    units.WithUnit(i, [&](DeviceHandle unit) { next = visit(unit); });
  }
}

/// Opens the first unit, if there is one, calls `visit` with its handle, and closes it. One that
/// does not open is not replaced by the next.
template <typename Visitor>
void VisitFirstUnit(const ConnectedUnits &units, Visitor visit) {
  if (units.Count() > 0) units.WithUnit(0, visit);
}

/// Sends one write request to every connected unit and ignores the results. Returns the units, for
/// a caller that visits them again.
ConnectedUnits ApplyToEveryUnit(ProductId productId, const auto &request, std::uint16_t value) {
  ConnectedUnits units(productId);
  VisitUnits(units, [&](DeviceHandle unit) {
    request(unit, value);
    return Visit::kNext;
  });
  return units;
}

}  // namespace orv
