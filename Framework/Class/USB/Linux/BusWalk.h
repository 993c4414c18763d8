// The walk over the USB devices that the kernel shows.
#pragma once

#include <compare>
#include <cstdint>
#include <vector>

namespace orv {

/// Where a unit is on the bus. Ordered by bus number, then by device number.
struct UnitAddress {
  std::uint16_t bus;
  std::uint16_t device;

  auto operator<=>(const UnitAddress &) const = default;
};

/// The units connected now, in no particular order. Looks at the bus afresh each time; an entry
/// that vanishes while the walk looks at it is passed over. May throw std::bad_alloc.
std::vector<UnitAddress> ConnectedUnits();

}  // namespace orv
