// The memory that a call leaves allocated.
#pragma once

#include <cstddef>

#include <malloc.h>

namespace orv {

inline std::size_t HeapInUse() {
  const struct mallinfo2 now = mallinfo2();
  return now.uordblks + now.hblkhd;
}

/// The bytes by which the heap grows in this number of calls, after enough earlier calls to have
/// allocated everything that is allocated only once.
template <typename Action>
std::ptrdiff_t HeapGrowth(int calls, Action action) {
  for (int i = 0; i < calls / 10; ++i) action();
  const std::size_t before = HeapInUse();
  for (int i = 0; i < calls; ++i) action();
  return static_cast<std::ptrdiff_t>(HeapInUse() - before);
}

/// What 10,000 calls may leave: less than the smallest object each would amount to.
inline constexpr std::ptrdiff_t kNothingPerCall = 10'000 * 16;

}  // namespace orv
