#pragma once

#include <cstdint>
#include <cstdio>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// The bytes that pairs of hexadecimal digits spell; blanks between pairs are passed over.
inline std::vector<std::uint8_t> BytesOf(std::string_view text) {
  std::vector<std::uint8_t> bytes;
  for (std::size_t place = 0; place + 1 < text.size();) {
    if (text[place] == ' ') {
      ++place;
      continue;
    }
    bytes.push_back(
        static_cast<std::uint8_t>(std::stoul(std::string(text.substr(place, 2)), nullptr, 16)));
    place += 2;
  }
  return bytes;
}

/// The bytes as pairs of hexadecimal digits, with a blank after each fourth byte but the last.
inline std::string HexOf(std::span<const std::uint8_t> bytes) {
  std::string text;
  for (std::size_t place = 0; place < bytes.size(); ++place) {
    char pair[4];
    std::snprintf(pair, sizeof pair, place % 4 == 0 && place > 0 ? " %02x" : "%02x",
                  static_cast<unsigned>(bytes[place]));
    text += pair;
  }
  return text;
}
