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

/// What one exported call saw on the bus: the units in their order. Units are opened by address, so
/// one that goes away leaves the others their positions for as long as the call lasts.
using BusLook = std::vector<UnitAddress>;

}  // namespace orv
