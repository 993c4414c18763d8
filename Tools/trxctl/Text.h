#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace trxctl {

/// A text from outside with its control characters replaced, so that it cannot steer the terminal.
std::string Printable(std::string_view text);

/// A printable text in double quotes.
std::string Quoted(std::string_view text);

/// "a", "a, b", "a, b, c".
std::string Joined(const std::vector<std::string> &parts, std::string_view separator = ", ");

/// "1 mixer", "2 mixers".
std::string Counted(std::size_t number, std::string_view noun);

/// The text in lower case (ASCII letters only).
std::string Lower(std::string_view text);

}  // namespace trxctl
