#include "IntegerReading.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace orv {

std::int32_t LowBits(std::uint64_t number) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(number));
}

std::optional<std::int32_t> IntegerOfReal(double real) {
  const double whole = std::trunc(real);
  if (!(whole >= std::numeric_limits<std::int32_t>::min() &&
        whole <= std::numeric_limits<std::int32_t>::max())) {
    return std::nullopt;
  }
  return static_cast<std::int32_t>(whole);
}

std::optional<std::int32_t> IntegerOfText(std::string_view text) {
  if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
  std::int64_t number = 0;
  const char *end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  if (error != std::errc() || stop != end) return std::nullopt;
  return LowBits(static_cast<std::uint64_t>(number));
}

}  // namespace orv
