#include "Choice.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <utility>

#include "Failure.h"
#include "Text.h"

namespace trxctl {
namespace {

std::string Plain(std::string_view text) {
  std::string plain = Lower(text);
  std::erase_if(plain, [](char c) { return c == ' ' || c == '\t'; });
  return plain;
}

std::optional<uint32_t> AsIndex(std::string_view digits, std::size_t count, uint32_t first) {
  uint32_t number = 0;
  const char *end = digits.data() + digits.size();
  const auto [rest, error] = std::from_chars(digits.data(), end, number);
  if (error != std::errc() || rest != end || number < first || number - first >= count) {
    return std::nullopt;
  }
  return number - first;
}

/// The choices whose text, made plain, satisfies the test; a text that stands twice counts once.
template <typename Test>
std::vector<uint32_t> Matching(const std::vector<std::string> &choices, const Test &test) {
  std::vector<uint32_t> found;
  std::vector<std::string> seen;
  for (uint32_t index = 0; index < choices.size(); ++index) {
    const std::string plain = Plain(choices[index]);
    if (!test(plain) || std::find(seen.begin(), seen.end(), plain) != seen.end()) continue;
    found.push_back(index);
    seen.push_back(plain);
  }
  return found;
}

std::vector<std::string> TextsOf(const std::vector<uint32_t> &indexes,
                                 const std::vector<std::string> &choices) {
  std::vector<std::string> texts;
  texts.reserve(indexes.size());
  for (const uint32_t index : indexes) texts.push_back(choices[index]);
  return texts;
}

std::string Listed(const std::vector<std::string> &texts) {
  std::vector<std::string> quoted;
  quoted.reserve(texts.size());
  for (const std::string &text : texts) quoted.push_back(Quoted(text));
  return Joined(quoted);
}

}  // namespace

uint32_t ChoiceNamed(std::string_view given, const std::vector<std::string> &choices,
                     std::string_view title, uint32_t first) {
  const std::string wanted = Plain(given);
  const auto exact = Matching(choices, [&](const std::string &text) { return text == wanted; });
  if (!exact.empty()) return exact.front();
  if (const auto index = AsIndex(wanted, choices.size(), first)) return *index;

  const auto begun = Matching(choices, [&](const std::string &text) {
    return !wanted.empty() && text.starts_with(wanted);
  });
  if (begun.size() == 1) return begun.front();
  if (begun.empty()) {
    throw Failure{ExitCode::kRefused, Quoted(given) + " is no " + std::string(title),
                  "choose one of " + Listed(choices) + ", or a number from " +
                      std::to_string(first) + " to " + std::to_string(first + choices.size() - 1),
                  choices};
  }
  const std::vector<std::string> candidates = TextsOf(begun, choices);
  throw Failure{ExitCode::kRefused, Quoted(given) + " could be more than one " + std::string(title),
                "write a little more of it: " + Listed(candidates), candidates};
}

}  // namespace trxctl
