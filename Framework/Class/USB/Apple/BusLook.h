#pragma once

namespace orv {

/// What one exported call keeps of its look at the bus: nothing. The registry promises no order
/// that would hold for the length of a call, and hosts are used to each opening looking afresh: a
/// unit that goes away leaves its position to the next one.
struct BusLook {};

}  // namespace orv
