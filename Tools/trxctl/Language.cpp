#include "Language.h"

#include <algorithm>
#include <array>

#include "Choice.h"
#include "Text.h"

namespace trxctl {
namespace {

struct Language {
  std::string_view name;
  std::string_view code;
};

// The position of a language is its number in the library.
constexpr std::array<Language, 12> kLanguages{{{"English", "en"},
                                               {"Japanese", "ja"},
                                               {"French", "fr"},
                                               {"German", "de"},
                                               {"Italian", "it"},
                                               {"Dutch", "nl"},
                                               {"Spanish", "es"},
                                               {"Russian", "ru"},
                                               {"Portuguese", "pt"},
                                               {"Simplified Chinese", "zh_CN"},
                                               {"Traditional Chinese", "zh_TW"},
                                               {"Korean", "ko"}}};

}  // namespace

std::vector<std::string> LanguageNames() {
  std::vector<std::string> names;
  names.reserve(kLanguages.size());
  for (const Language &language : kLanguages) names.emplace_back(language.name);
  return names;
}

int32_t LanguageNamed(std::string_view given) {
  if (given == std::to_string(kSystemLanguage)) return kSystemLanguage;
  const auto coded = std::find_if(
      kLanguages.begin(), kLanguages.end(),
      [given](const Language &language) { return Lower(language.code) == Lower(given); });
  if (coded != kLanguages.end()) return static_cast<int32_t>(coded - kLanguages.begin());
  return static_cast<int32_t>(ChoiceNamed(given, LanguageNames(), "language"));
}

}  // namespace trxctl
