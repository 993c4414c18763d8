#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace trxctl {

/// Stands for the language of the user's system.
inline constexpr int32_t kSystemLanguage = 99;

/// The names of the languages that warnings are there in, by the library's number.
std::vector<std::string> LanguageNames();

/// The language that the user named: by its name in English or the beginning of it, its code or
/// its number. Throws Failure for any other.
int32_t LanguageNamed(std::string_view given);

}  // namespace trxctl
