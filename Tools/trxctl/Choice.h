#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace trxctl {

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

}  // namespace trxctl
