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

/// The units that one exported call saw on the bus, in order. Units are opened by address: when one
/// goes away, the others keep their positions until the call ends.
using BusLook = std::vector<UnitAddress>;

}  // namespace orv
