#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace client {

/// Stands for the language of the user's system.
inline constexpr int32_t kSystemLanguage = 99;

/// A language that warnings are written in.
struct Language {
  /// Its name in English.
  std::string_view name;
  std::string_view code;
};

/// All languages; the position of a language is its number in the library.
std::span<const Language> Languages();

}  // namespace client
