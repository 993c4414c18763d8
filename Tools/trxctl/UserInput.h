#pragma once

#include <charconv>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "client/Settings.h"

namespace trxctl {

/// The candidate that the user most likely meant, if one is near enough to be worth suggesting.
std::optional<std::string> Nearest(std::string_view given,
                                   const std::vector<std::string> &candidates);

/// The whole number that a text spells; nothing for any other text.
template <typename Integer>
std::optional<Integer> NumberIn(std::string_view text, int base = 10) {
  Integer number{};
  const char *end = text.data() + text.size();
  const auto [rest, error] = std::from_chars(text.data(), end, number, base);
  if (error != std::errc() || rest != end) return std::nullopt;
  return number;
}

/// Finds the choice that the user named: by its text, by its index, or by an unambiguous beginning
/// of its text, in this order. Case and blanks do not count, so that -10db names "-10 dB". Throws
/// Failure when it names none or several.
///
/// @param given    what the user typed.
/// @param choices  the texts of all choices, by index.
/// @param title    what a choice is called in a sentence.
/// @param first    the number of the first choice, as people count them.
/// @return the index of the choice, counted from 0.
uint32_t ChoiceNamed(std::string_view given, const std::vector<std::string> &choices,
                     std::string_view title, uint32_t first = 0);

/// The model that the user named. Throws Failure for none, for several, and for one that has no
/// settings.
const client::Model &ModelNamed(const std::string &given);

/// The channel that the user named, counted from 0. Throws Failure for any other text.
int32_t ChannelNamed(const std::string &given, const client::SettingKind &kind,
                     const client::Model &model, std::size_t count);

/// The number of the language that the user named: by its name in English or the beginning of it,
/// its code or its number. Throws Failure for any other.
int32_t LanguageNamed(std::string_view given);

/// The raw source code that the user named, decimal or, after 0x, hexadecimal. Throws Failure for
/// one that the setting does not take.
uint32_t SourceNamed(const std::string &given, const client::Setting &setting);

}  // namespace trxctl
