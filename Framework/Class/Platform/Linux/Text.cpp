#include "Text.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "KeptTexts.h"

namespace orv {
namespace {

struct UpperCase {
  std::string_view character;  // UTF-8
  std::string_view upperCase;
};

// The characters outside ASCII whose upper-case form contains ASCII letters. No others can become
// part of an ASCII text, so the rest of Unicode needs no table.
constexpr std::array<UpperCase, 17> kBeyondAscii = {{
    {"\u00DF", "SS"},       // sharp s
    {"\u0131", "I"},        // dotless i
    {"\u017F", "S"},        // long s
    {"\u0149", "\u02BCN"},  // n after an apostrophe
    {"\u01F0", "J\u030C"},  // letters with marks that have no capital of their own
    {"\u1E96", "H\u0331"},  //
    {"\u1E97", "T\u0308"},  //
    {"\u1E98", "W\u030A"},  //
    {"\u1E99", "Y\u030A"},  //
    {"\u1E9A", "A\u02BE"},  //
    {"\uFB00", "FF"},       // the ligatures
    {"\uFB01", "FI"},       //
    {"\uFB02", "FL"},       //
    {"\uFB03", "FFI"},      //
    {"\uFB04", "FFL"},      //
    {"\uFB05", "ST"},       //
    {"\uFB06", "ST"},       //
}};

// Reads the upper-case form of a text byte by byte, without a copy.
class UpperCaseReader {
 public:
  explicit UpperCaseReader(std::string_view text) : text_(text) {}

  /// The next byte; 0 at the end.
  char Next() {
    if (rest_.empty()) TakeCharacter();
    if (rest_.empty()) return '\0';
    const char next = rest_.front();
    rest_.remove_prefix(1);
    return next >= 'a' && next <= 'z' ? static_cast<char>(next - 'a' + 'A') : next;
  }

 private:
  void TakeCharacter() {
    for (const UpperCase &special : kBeyondAscii) {
      if (text_.starts_with(special.character)) {
        text_.remove_prefix(special.character.size());
        rest_ = special.upperCase;
        return;
      }
    }
    rest_ = text_.substr(0, 1);
    text_.remove_prefix(rest_.size());
  }

  std::string_view text_;
  std::string_view rest_;
};

bool StartsWith(UpperCaseReader reader, std::string_view upperCase) {
  for (const char wanted : upperCase) {
    if (reader.Next() != wanted) return false;
  }
  return true;
}

bool IsDigit(char character) { return character >= '0' && character <= '9'; }

unsigned char ByteOf(std::string_view text) { return static_cast<unsigned char>(text.front()); }

// Removes the run of digits at the front of the text and returns it without leading zeros.
std::string_view TakeNumber(std::string_view &text) {
  std::size_t end = 0;
  while (end < text.size() && IsDigit(text[end])) ++end;
  std::string_view number = text.substr(0, end);
  text.remove_prefix(end);
  number.remove_prefix(std::min(number.find_first_not_of('0'), number.size()));
  return number;
}

// On Linux a text is its characters.
class CharactersAsText {
 public:
  explicit CharactersAsText(const std::string &characters) : characters_(characters.c_str()) {}
  ORVStringRef Reference() const { return characters_; }

 private:
  const char *characters_;
};

KeptTexts<CharactersAsText> keptTexts;

}  // namespace

bool UpperCaseContains(ORVStringRef text, const char *upperCase) noexcept {
  UpperCaseReader position(text);
  do {
    if (StartsWith(position, upperCase)) return true;
  } while (position.Next() != '\0');
  return false;
}

bool IsNumericallyGreater(const std::string &text, const std::string &than) {
  std::string_view left = text;
  std::string_view right = than;
  while (!left.empty() && !right.empty()) {
    if (IsDigit(left.front()) && IsDigit(right.front())) {
      const std::string_view leftNumber = TakeNumber(left);
      const std::string_view rightNumber = TakeNumber(right);
      if (leftNumber.size() != rightNumber.size()) return leftNumber.size() > rightNumber.size();
      if (leftNumber != rightNumber) return leftNumber > rightNumber;
    } else {
      if (left.front() != right.front()) return ByteOf(left) > ByteOf(right);
      left.remove_prefix(1);
      right.remove_prefix(1);
    }
  }
  return !left.empty();
}

ORVStringRef KeptText(std::string_view text) { return keptTexts.Keep(text); }

}  // namespace orv
