#include "ProfileNames.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "ProfileFault.h"

namespace client {
namespace {

constexpr std::string_view kEnding = ".json";

// Capitals are not among them: where case does not count, "A" and "a" would meet in one file.
bool StandsForItself(unsigned char byte) {
  return (byte >= 'a' && byte <= 'z') || (byte >= '0' && byte <= '9') || byte == '-' || byte == '_';
}

bool IsContinuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80; }

/// How characters of so many bytes begin, and the smallest that needs as many.
struct Utf8Form {
  unsigned mask;
  unsigned lead;
  std::size_t length;
  char32_t smallest;
};

constexpr std::array<Utf8Form, 4> kUtf8Forms{
    {{0x80, 0x00, 1, 0}, {0xE0, 0xC0, 2, 0x80}, {0xF0, 0xE0, 3, 0x800}, {0xF8, 0xF0, 4, 0x10000}}};

/// Takes one character off the front; nothing when there is none.
std::optional<char32_t> TakeCharacter(std::string_view &bytes) {
  const auto first = static_cast<unsigned char>(bytes.front());
  const auto *const form =
      std::find_if(kUtf8Forms.begin(), kUtf8Forms.end(),
                   [first](const Utf8Form &one) { return (first & one.mask) == one.lead; });
  if (form == kUtf8Forms.end() || bytes.size() < form->length) return std::nullopt;
  char32_t character = first & ~form->mask;
  for (std::size_t i = 1; i < form->length; ++i) {
    if (!IsContinuation(bytes[i])) return std::nullopt;
    character = character << 6U | (static_cast<unsigned char>(bytes[i]) & 0x3FU);
  }
  const bool isSurrogate = character >= 0xD800 && character <= 0xDFFF;
  if (character < form->smallest || character > 0x10FFFF || isSurrogate) return std::nullopt;
  bytes.remove_prefix(form->length);
  return character;
}

bool IsControl(char32_t character) {
  return character < 0x20 || (character >= 0x7F && character <= 0x9F);
}

bool IsPrintable(std::string_view name) {
  while (!name.empty()) {
    const auto character = TakeCharacter(name);
    if (!character || IsControl(*character)) return false;
  }
  return true;
}

void AppendEscape(std::string &text, unsigned char byte) {
  static constexpr std::string_view kDigits = "0123456789ABCDEF";
  text += '%';
  text += kDigits[byte >> 4U];
  text += kDigits[byte & 0xFU];
}

/// The byte that the two digits at the front stand for.
std::optional<unsigned char> EscapedByte(std::string_view digits) {
  unsigned char byte = 0;
  if (digits.size() < 2) return std::nullopt;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + 2, byte, 16);
  if (error != std::errc() || end != digits.data() + 2) return std::nullopt;
  return byte;
}

}  // namespace

bool IsUtf8(std::string_view bytes) {
  while (!bytes.empty()) {
    if (!TakeCharacter(bytes)) return false;
  }
  return true;
}

void CheckProfileName(const std::string &name) {
  if (name.find_first_not_of(' ') == std::string::npos) {
    throw ProfileFault{ProfileProblem::kNameEmpty};
  }
  if (name.size() > kLongestProfileName) throw ProfileFault{ProfileProblem::kNameTooLong, name};
  if (!IsPrintable(name)) throw ProfileFault{ProfileProblem::kNameNotPrintable, name};
}

std::string ProfileFileName(const std::string &name) {
  std::string fileName;
  for (const char character : name) {
    const auto byte = static_cast<unsigned char>(character);
    if (StandsForItself(byte)) {
      fileName += character;
    } else {
      AppendEscape(fileName, byte);
    }
  }
  return fileName.append(kEnding);
}

std::optional<std::string> ProfileNamedBy(const std::string &fileName) {
  if (!fileName.ends_with(kEnding)) return std::nullopt;
  std::string name;
  std::string_view rest(fileName);
  rest.remove_suffix(kEnding.size());
  while (!rest.empty()) {
    const auto escaped = rest.front() == '%' ? EscapedByte(rest.substr(1)) : std::nullopt;
    name += escaped ? static_cast<char>(*escaped) : rest.front();
    rest.remove_prefix(escaped ? 3 : 1);
  }
  // There is one way only to write a name.
  if (ProfileFileName(name) != fileName) return std::nullopt;
  return name;
}

}  // namespace client
