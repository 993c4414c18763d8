#include "UserInput.h"

#include <algorithm>
#include <cctype>
#include <iterator>
#include <numeric>
#include <sstream>

#include "ExitCode.h"
#include "Words.h"
#include "client/Delivery.h"
#include "client/InputLists.h"
#include "client/Languages.h"

namespace trxctl {
namespace {

/// How many letters have to be added, removed or replaced to turn one text into the other.
std::size_t Distance(std::string_view from, std::string_view to) {
  std::vector<std::size_t> row(to.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t i = 0; i < from.size(); ++i) {
    std::size_t diagonal = row[0];
    row[0] = i + 1;
    for (std::size_t j = 0; j < to.size(); ++j) {
      const std::size_t replaced = diagonal + (from[i] == to[j] ? 0 : 1);
      diagonal = row[j + 1];
      row[j + 1] = std::min({replaced, row[j] + 1, row[j + 1] + 1});
    }
  }
  return row.back();
}

/// The text in lower case, with dashes for minus signs and without blanks.
std::string Plain(std::string_view text) {
  static constexpr std::string_view kMinusSign = "\u2212";
  std::string plain = Lower(text);
  for (auto at = plain.find(kMinusSign); at != std::string::npos; at = plain.find(kMinusSign)) {
    plain.replace(at, kMinusSign.size(), "-");
  }
  std::erase_if(plain, [](char c) { return c == ' ' || c == '\t'; });
  return plain;
}

std::vector<std::string> WordsIn(std::string_view text) {
  std::istringstream stream{Lower(text)};
  return {std::istream_iterator<std::string>(stream), {}};
}

bool HasDigit(std::string_view text) {
  return text.find_first_of("0123456789") != std::string_view::npos;
}

/// Whether the text has each of the words. A bare number is too easily meant otherwise.
bool HasWords(const std::string &text, const std::vector<std::string> &wanted) {
  const std::vector<std::string> words = WordsIn(text);
  return !wanted.empty() && std::all_of(wanted.begin(), wanted.end(), [&](const auto &word) {
    return !NumberIn<uint64_t>(word) && std::find(words.begin(), words.end(), word) != words.end();
  });
}

std::optional<uint32_t> AsIndex(std::string_view digits, std::size_t count) {
  const auto number = NumberIn<uint32_t>(digits);
  if (!number || *number < 1 || *number > count) return std::nullopt;
  return *number - 1;
}

/// The choices whose text, made plain, satisfies the test; a text that stands twice counts once.
template <typename Test>
std::vector<uint32_t> Matching(const std::vector<std::string> &choices, const Test &test) {
  std::vector<uint32_t> found;
  std::vector<std::string> seen;
  for (uint32_t index = 0; index < choices.size(); ++index) {
    const std::string plain = Plain(choices[index]);
    if (!test(choices[index]) || std::find(seen.begin(), seen.end(), plain) != seen.end()) continue;
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

/// The letters and digits of a text, in lower case.
std::string Bare(std::string_view text) {
  std::string bare = Lower(text);
  std::erase_if(bare, [](unsigned char c) { return std::isalnum(c) == 0; });
  return bare;
}

/// The choice that the user most likely meant: the one that begins so but for dashes and the like,
/// else, as numbers are seldom mistyped, the one that is spelled almost so.
std::optional<std::string> MeantChoice(std::string_view given,
                                       const std::vector<std::string> &choices) {
  const std::string bare = Bare(given);
  const auto begun = Matching(choices, [&bare](const std::string &text) {
    return !bare.empty() && Bare(text).starts_with(bare);
  });
  if (begun.size() == 1) return choices[begun.front()];
  return HasDigit(given) ? std::nullopt : Nearest(given, choices);
}

/// The served model that the user most likely meant, with or without the name of the family.
std::optional<std::string> NearestModel(const std::string &given) {
  static constexpr std::string_view kFamily = "TRX-";
  std::vector<std::string> names = NamesOf(client::ServedModels());
  if (auto nearest = Nearest(given, names)) return nearest;
  for (std::string &name : names) name.erase(0, kFamily.size());
  auto nearest = Nearest(given, names);
  if (nearest) nearest->insert(0, kFamily);
  return nearest;
}

[[noreturn]] void RefuseModel(const std::string &message, const std::string &lead) {
  const std::vector<std::string> served = NamesOf(client::ServedModels());
  throw Failure{ExitCode::kRefused, message, lead + "choose one of " + Joined(served), served};
}

}  // namespace

std::optional<std::string> Nearest(std::string_view given,
                                   const std::vector<std::string> &candidates) {
  const std::string wanted = Lower(given);
  std::optional<std::string> best;
  std::size_t bestDistance = 0;
  for (const std::string &candidate : candidates) {
    const std::size_t distance = Distance(wanted, Lower(candidate));
    // More than a third of the letters wrong is another word, not a slip of the finger.
    const bool near = distance * 3 <= std::max(wanted.size(), candidate.size()) + 2;
    if (near && (!best || distance < bestDistance)) {
      best = candidate;
      bestDistance = distance;
    }
  }
  return best;
}

uint32_t ChoiceNamed(std::string_view given, const std::vector<std::string> &choices,
                     std::string_view title) {
  const std::string wanted = Plain(given);
  const auto exact =
      Matching(choices, [&](const std::string &text) { return Plain(text) == wanted; });
  if (!exact.empty()) return exact.front();
  if (const auto index = AsIndex(wanted, choices.size())) return *index;

  auto found = Matching(choices, [&](const std::string &text) {
    return !wanted.empty() && Plain(text).starts_with(wanted);
  });
  if (found.empty()) {
    found =
        Matching(choices, [&](const std::string &text) { return HasWords(text, WordsIn(given)); });
  }
  if (found.size() == 1) return found.front();
  if (found.empty()) {
    const auto meant = MeantChoice(given, choices);
    throw Failure{ExitCode::kRefused, Quoted(given) + " is no " + std::string(title),
                  (meant ? "did you mean " + Quoted(*meant) + "? Otherwise " : "") +
                      "choose one of " + Listed(choices) + ", or a number from 1 to " +
                      std::to_string(choices.size()),
                  choices};
  }
  const std::vector<std::string> candidates = TextsOf(found, choices);
  throw Failure{ExitCode::kRefused, Quoted(given) + " could be more than one " + std::string(title),
                "write a little more of it: " + Listed(candidates), candidates};
}

const client::Model &UnnamedModel() {
  const client::Model *agreed = client::AgreedModel(client::ConnectedMixers());
  return agreed == nullptr ? client::DefaultModel() : *agreed;
}

const client::Model &ModelNamed(const std::string &given) {
  const std::vector<const client::Model *> matching = client::ModelsMatching(given);
  if (matching.size() > 1) {
    throw Failure{ExitCode::kRefused, Quoted(given) + " could be more than one mixer model",
                  "write a little more of it: " + Joined(NamesOf(matching)), NamesOf(matching)};
  }
  if (matching.empty()) {
    const auto nearest = NearestModel(given);
    RefuseModel(Quoted(given) + " names no mixer model",
                nearest ? "did you mean " + *nearest + "? Otherwise " : "");
  }
  const client::Model &model = *matching.front();
  if (!model.served) {
    RefuseModel(std::string(model.name) + " is known by name only; it has no settings here", "");
  }
  return model;
}

int32_t ChannelNamed(const std::string &given, const client::SettingKind &kind,
                     const client::Model &model, std::size_t count) {
  std::vector<std::string> channels;
  for (std::size_t channel = 1; channel <= count; ++channel) {
    channels.push_back(std::to_string(channel));
  }
  const auto found = std::find(channels.begin(), channels.end(), given);
  if (found == channels.end()) {
    throw Failure{ExitCode::kRefused,
                  Quoted(given) + " is no channel of " + std::string(model.name) + ' ' +
                      std::string(kind.title),
                  "choose one of " + Joined(channels), channels};
  }
  return static_cast<int32_t>(found - channels.begin());
}

int32_t LanguageNamed(std::string_view given) {
  const auto languages = client::Languages();
  // The numbers are those of the library, from 0.
  const auto number = NumberIn<int32_t>(given);
  if (number == client::kSystemLanguage) return client::kSystemLanguage;
  if (number && *number >= 0 && static_cast<std::size_t>(*number) < languages.size())
    return *number;
  const auto coded = std::find_if(
      languages.begin(), languages.end(),
      [given](const client::Language &language) { return Lower(language.code) == Lower(given); });
  if (coded != languages.end()) return static_cast<int32_t>(coded - languages.begin());
  std::vector<std::string> names;
  for (const client::Language &language : languages) names.emplace_back(language.name);
  return static_cast<int32_t>(ChoiceNamed(given, names, "language"));
}

uint32_t SourceNamed(const std::string &given, const client::Setting &setting) {
  const uint32_t count = client::CountRawInputSources(setting.model->id, setting.channel);
  const bool isHexadecimal = given.starts_with("0x") || given.starts_with("0X");
  const auto source = isHexadecimal ? NumberIn<uint32_t>(std::string_view(given).substr(2), 16)
                                    : NumberIn<uint32_t>(given);
  if (!source || *source >= count) {
    throw Failure{ExitCode::kRefused,
                  Quoted(given) + " is no source code of " + std::string(setting.model->name) +
                      ' ' + TitleOf(setting),
                  "choose a number from 0 to " + std::to_string(count - 1)};
  }
  return *source;
}

}  // namespace trxctl
