#include "Text.h"

#include <algorithm>

namespace trxctl {

std::string Printable(std::string_view text) {
  std::string result(text);
  const auto is_control = [](char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte < 0x20 || byte == 0x7F;
  };
  std::replace_if(result.begin(), result.end(), is_control, '?');
  return result;
}

std::string Quoted(std::string_view text) { return '"' + Printable(text) + '"'; }

std::string Joined(const std::vector<std::string> &parts, std::string_view separator) {
  std::string result;
  for (const std::string &part : parts) {
    if (!result.empty()) result += separator;
    result += part;
  }
  return result;
}

std::string Counted(std::size_t number, std::string_view noun) {
  return std::to_string(number) + ' ' + std::string(noun) + (number == 1 ? "" : "s");
}

std::string Lower(std::string_view text) {
  std::string result(text);
  for (char &c : result) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return result;
}

}  // namespace trxctl
