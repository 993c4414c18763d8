// Limits for property lists that are given to the parser. The parser recurses once for each level
// when it reads, writes and frees, and copies an object for each reference to it: without limits, a
// few hundred bytes exhaust stack or memory.
#pragma once

#include <cstddef>
#include <string_view>

namespace orv {

/// The largest file that is read, in bytes. A settings file has a few hundred.
inline constexpr std::size_t kLargestPropertyList = std::size_t{4} << 20;

enum class Extent {
  kWithinLimits,
  kBeyondLimits,  // may be a property list, but must not be given to the parser
  kNoList,        // truncated or no property list: the parser might read past its end
};

/// Whether the parser can read the text, XML or binary, with bounded stack and memory. The text may
/// still be malformed in other ways.
Extent ExtentOf(std::string_view contents);

inline bool WithinLimits(std::string_view contents) {
  return ExtentOf(contents) == Extent::kWithinLimits;
}

}  // namespace orv
