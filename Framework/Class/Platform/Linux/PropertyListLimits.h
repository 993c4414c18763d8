// What a property list may be like before it is handed to the parser. The parser descends once a
// level, in reading, writing and freeing, and copies an object for each reference to it: without
// limits a few hundred bytes exhaust stack or memory.
#pragma once

#include <cstddef>
#include <string_view>

namespace orv {

/// The largest file that is read, in bytes. A settings file has a few hundred.
inline constexpr std::size_t kLargestPropertyList = std::size_t{4} << 20;

enum class Extent {
  kWithinLimits,
  kBeyondLimits,  // may be a property list, but the parser must not be given it
  kNoList,        // cut off or no property list: the parser may not see where it ends
};

/// Whether the parser can read the text, XML or binary, in bounded stack and memory. Says nothing
/// else about whether it is a well-formed property list.
Extent ExtentOf(std::string_view contents);

inline bool WithinLimits(std::string_view contents) {
  return ExtentOf(contents) == Extent::kWithinLimits;
}

}  // namespace orv
