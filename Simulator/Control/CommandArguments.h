#pragma once

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace trxsim {

/// A command that cannot be understood; `what()` is a message for the user.
class CommandError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The words of one command, taken one after the other.
class CommandArguments {
 public:
  /// Splits `line` at blanks. `usage` is quoted in the messages about missing or extra words.
  explicit CommandArguments(std::string_view line);

  /// Sets the usage line that messages quote from now on.
  void SetUsage(std::string usage) { usage_ = std::move(usage); }

  /// How many words are left.
  std::size_t Left() const { return words_.size() - next_; }

  /// The next word without taking it; empty when none is left.
  std::string Peek() const;

  /// Takes the next word.
  std::string Word();

  /// Takes a number from 0 to `highest`, decimal or 0x hexadecimal.
  std::uint32_t Number(std::uint32_t highest);

  /// Takes a unit number.
  int Unit();

  /// Throws if a word is left.
  void End() const;

 private:
  std::vector<std::string> words_;
  std::size_t next_ = 0;
  std::string usage_;
};

/// `word` in quotes, shortened, with `?` in the place of characters that cannot be printed.
std::string Quoted(std::string_view word);

/// A whole word as a number in `base` (0: decimal, or hexadecimal after 0x); nothing unless all of
/// it is one that is not above `highest`.
std::optional<std::uint32_t> ParseNumber(std::string word, int base, std::uint32_t highest);

}  // namespace trxsim
