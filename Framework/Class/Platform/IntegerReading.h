// How an entry of a property list is read as an integer, the same on every platform. Any thread.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace orv {

/// An integer's low 32 bits, signed.
std::int32_t LowBits(std::uint64_t number);

/// A real without its fraction; nothing when that is too large.
std::optional<std::int32_t> IntegerOfReal(double real);

/// The integer that a text spells; nothing when the text has anything else in it.
std::optional<std::int32_t> IntegerOfText(std::string_view text);

}  // namespace orv
