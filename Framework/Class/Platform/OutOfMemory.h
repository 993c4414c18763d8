// Memory may run out in any call, and no exception may leave the C interface: operations that
// allocate run inside one of these functions. Any thread.
#pragma once

#include <new>

namespace orv {

/// Runs an action that has a result; gives the other result when memory runs out.
template <typename Result, typename Action>
Result UnlessOutOfMemory(Result otherwise, Action action) noexcept {
  try {
    return action();
  } catch (const std::bad_alloc &) {
    return otherwise;
  }
}

/// Runs an action; when memory runs out, the rest of it is not done.
template <typename Action>
void WhileMemoryLasts(Action action) noexcept {
  try {
    action();
  } catch (const std::bad_alloc &) {
    return;
  }
}

}  // namespace orv
