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
  // cppcheck takes the text of a caller for gone, though it outlives the call.
  // cppcheck-suppress invalidLifetime
  const char *end = text.data() + text.size();
  // cppcheck-suppress invalidLifetime
  const auto [rest, error] = std::from_chars(text.data(), end, number, base);
  if (error != std::errc() || rest != end) return std::nullopt;
  return number;
}

/// Finds the choice that the user named: by its text, by its number, by an unambiguous beginning of
/// its text, or by words that only its text has, in this order. Case and blanks do not count, so
/// that -10db names "-10 dB", and a minus sign is as good as a dash. Throws Failure when it names
/// none or several.
///
/// People count from 1, and only digits alone are a number: -10 is the beginning of a text.
///
/// @param given    what the user typed.
/// @param choices  the texts of all choices, by index.
/// @param title    what a choice is called in a sentence.
/// @return the index of the choice, counted from 0.
uint32_t ChoiceNamed(std::string_view given, const std::vector<std::string> &choices,
                     std::string_view title);

/// The model of the connected mixers, if they agree on one, else the default: what is meant when
/// the user names none.
const client::Model &UnnamedModel();

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
