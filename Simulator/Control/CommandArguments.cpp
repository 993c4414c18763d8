#include "CommandArguments.h"

#include <charconv>

namespace trxsim {

namespace {

constexpr std::size_t kLongestQuote = 40;
constexpr std::uint32_t kHighestUnit = 1'000'000;

bool IsBlank(char character) { return character == ' ' || character == '\t' || character == '\r'; }

}  // namespace

CommandArguments::CommandArguments(std::string_view line) {
  std::string word;
  for (const char character : line) {
    if (!IsBlank(character)) {
      word += character;
    } else if (!word.empty()) {
      words_.push_back(std::move(word));
      word.clear();
    }
  }
  if (!word.empty()) words_.push_back(std::move(word));
}

std::string CommandArguments::Peek() const { return Left() == 0 ? std::string() : words_[next_]; }

std::string CommandArguments::Word() {
  if (Left() == 0) throw CommandError("an argument is missing; usage: " + usage_);
  return words_[next_++];
}

std::uint32_t CommandArguments::Number(std::uint32_t highest) {
  const std::string text = Word();
  const std::optional<std::uint32_t> number = ParseNumber(text, 0, highest);
  if (number) return *number;
  throw CommandError(Quoted(text) + " is not a number from 0 to " + std::to_string(highest) +
                     "; usage: " + usage_);
}

int CommandArguments::Unit() {
  const std::string text = Word();
  const std::optional<std::uint32_t> number = ParseNumber(text, 10, kHighestUnit);
  if (number && *number > 0) return static_cast<int>(*number);
  throw CommandError(Quoted(text) + " is not a unit number; `units` lists them; usage: " + usage_);
}

void CommandArguments::End() const {
  if (Left() != 0) {
    throw CommandError(Quoted(Peek()) + " is one argument too many; usage: " + usage_);
  }
}

std::string Quoted(std::string_view word) {
  std::string text = "\"";
  for (const char character : word.substr(0, kLongestQuote)) {
    const bool printable = character >= ' ' && character <= '~';
    text += printable ? character : '?';
  }
  return text + (word.size() > kLongestQuote ? "...\"" : "\"");
}

std::optional<std::uint32_t> ParseNumber(std::string word, int base, std::uint32_t highest) {
  if (base == 0) {
    const bool hexadecimal = word.starts_with("0x") || word.starts_with("0X");
    if (hexadecimal) word.erase(0, 2);
    base = hexadecimal ? 16 : 10;
  }
  std::uint32_t number = 0;
  const char *const end = word.data() + word.size();
  const auto [stop, error] = std::from_chars(word.data(), end, number, base);
  const bool isWhole = error == std::errc() && stop == end;
  return isWhole && number <= highest ? std::optional(number) : std::nullopt;
}

}  // namespace trxsim
