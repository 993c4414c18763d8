#include "XmlEncoding.h"

#include <array>
#include <string_view>

namespace orv {
namespace {

constexpr std::string_view kMarkUtf8 = "\xEF\xBB\xBF";

struct Beginning {
  std::string_view bytes;
  bool isBigEndian;
  std::size_t markSize;
};

constexpr std::array kBeginningsOfUtf16 = {
    Beginning{{"\xFE\xFF", 2}, true, 2},
    Beginning{{"\xFF\xFE", 2}, false, 2},
    Beginning{{"\0<", 2}, true, 0},
    Beginning{{"<\0", 2}, false, 0},
};

void Append(char32_t character, std::string &text) {
  const auto rest = [&](int shift) {
    text += static_cast<char>(0x80 | (character >> shift & 0x3F));
  };
  if (character < 0x80) {
    text += static_cast<char>(character);
  } else if (character < 0x800) {
    text += static_cast<char>(0xC0 | character >> 6);
    rest(0);
  } else if (character < 0x10000) {
    text += static_cast<char>(0xE0 | character >> 12);
    rest(6);
    rest(0);
  } else {
    text += static_cast<char>(0xF0 | character >> 18);
    rest(12);
    rest(6);
    rest(0);
  }
}

class Utf16 {
 public:
  Utf16(std::string_view bytes, bool isBigEndian) : bytes_(bytes), isBigEndian_(isBigEndian) {}

  std::optional<std::string> InUtf8() {
    if (bytes_.size() % 2 != 0) return std::nullopt;
    std::string text;
    text.reserve(bytes_.size());
    while (!bytes_.empty()) {
      const auto character = NextCharacter();
      if (!character) return std::nullopt;
      Append(*character, text);
    }
    return text;
  }

 private:
  static bool IsFirstHalf(char32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
  static bool IsSecondHalf(char32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

  char32_t NextUnit() {
    const auto first = static_cast<unsigned char>(bytes_[0]);
    const auto second = static_cast<unsigned char>(bytes_[1]);
    bytes_.remove_prefix(2);
    return isBigEndian_ ? char32_t{first} << 8 | second : char32_t{second} << 8 | first;
  }

  std::optional<char32_t> NextCharacter() {
    const char32_t unit = NextUnit();
    if (IsSecondHalf(unit)) return std::nullopt;
    if (!IsFirstHalf(unit)) return unit;
    if (bytes_.empty()) return std::nullopt;
    const char32_t second = NextUnit();
    if (!IsSecondHalf(second)) return std::nullopt;
    return 0x10000 + ((unit - 0xD800) << 10 | (second - 0xDC00));
  }

  std::string_view bytes_;
  bool isBigEndian_;
};

}  // namespace

std::optional<std::string> InUtf8(std::string contents) {
  for (const auto &[bytes, isBigEndian, markSize] : kBeginningsOfUtf16) {
    if (!contents.starts_with(bytes)) continue;
    return Utf16(std::string_view(contents).substr(markSize), isBigEndian).InUtf8();
  }
  if (contents.starts_with(kMarkUtf8)) contents.erase(0, kMarkUtf8.size());
  return contents;
}

}  // namespace orv
