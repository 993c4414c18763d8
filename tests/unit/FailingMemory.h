// Memory that runs out when a test requests it.
#pragma once

namespace orv {

/// From now on, this thread's n-th allocation with `new` (0-based) and all later ones fail, until
/// MemoryIsBack.
void MemoryLastsFor(int allocations);

/// Allocations succeed again. Returns whether one failed since MemoryLastsFor.
bool MemoryIsBack();

}  // namespace orv
