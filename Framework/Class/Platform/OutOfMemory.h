// Memory may run out in any call, and no exception may pass the C interface: the operations that
// allocate run inside one of these. Any thread.
#pragma once

#include <new>

namespace orv {

/// Runs an action that has a result; when memory runs out on the way, the result is another.
template <typename Result, typename Action>
Result UnlessOutOfMemory(Result otherwise, Action action) noexcept {
  try {
    return action();
  } catch (const std::bad_alloc &) {
    return otherwise;
  }
}

/// Runs an action; when memory runs out on the way, the rest of it is left undone.
template <typename Action>
void WhileMemoryLasts(Action action) noexcept {
  try {
    action();
  } catch (const std::bad_alloc &) {
    return;
  }
}

}  // namespace orv
