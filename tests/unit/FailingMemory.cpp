#include "FailingMemory.h"

#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

constexpr int kPlenty = -1;

thread_local int left = kPlenty;
thread_local bool hasFailed = false;

void *Allocate(std::size_t size) noexcept {
  if (left == 0) {
    hasFailed = true;
    return nullptr;
  }
  if (left > 0) --left;
  return std::malloc(size != 0 ? size : 1);
}

}  // namespace

// Replace the operators of the language in the whole program.
void *operator new(std::size_t size) {
  void *const memory = Allocate(size);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

void *operator new(std::size_t size, const std::nothrow_t &) noexcept { return Allocate(size); }

void operator delete(void *memory) noexcept { std::free(memory); }

void operator delete(void *memory, std::size_t) noexcept { std::free(memory); }

void operator delete(void *memory, const std::nothrow_t &) noexcept { std::free(memory); }

namespace orv {

void MemoryLastsFor(int allocations) {
  hasFailed = false;
  left = allocations;
}

bool MemoryIsBack() {
  left = kPlenty;
  return hasFailed;
}

}  // namespace orv
