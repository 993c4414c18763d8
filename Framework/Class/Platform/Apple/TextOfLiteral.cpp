#include "OutOfMemory.h"
#include "Text.h"

namespace orv {

ORVStringRef TextOfLiteral(const char *literal) noexcept {
  if (literal == nullptr) return nullptr;
  return UnlessOutOfMemory<ORVStringRef>(nullptr, [&] { return KeptText(literal); });
}

}  // namespace orv
