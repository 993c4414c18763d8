#pragma once

namespace orv {

/// Empty: on macOS an exported call keeps nothing from its look at the bus. The registry promises
/// no order that is stable during a call, and hosts rely on a new look for each opening: when a
/// unit goes away, the next one takes its position.
struct BusLook {};

}  // namespace orv
