#include "SystemLanguage.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string_view>

namespace orv {
namespace {

constexpr const char *kEnglish = "English";

struct Language {
  std::string_view code;
  const char *folder;
};

// A language with a country comes before the language alone if the country makes a difference.
constexpr std::array<Language, 14> kLanguages = {{
    {"zh_TW", "zh_TW"},
    {"zh_HK", "zh_TW"},
    {"zh_MO", "zh_TW"},
    {"zh", "zh_CN"},
    {"en", kEnglish},
    {"ja", "Japanese"},
    {"fr", "French"},
    {"de", "German"},
    {"it", "Italian"},
    {"nl", "Dutch"},
    {"es", "Spanish"},
    {"ru", "ru"},
    {"pt", "pt"},
    {"ko", "ko"},
}};

// "pt_BR.UTF-8@euro" is pt_BR or, if that is unknown, pt.
const char *FolderFor(std::string_view locale) {
  locale = locale.substr(0, locale.find_first_of(".@"));
  const std::string_view languageOnly = locale.substr(0, locale.find('_'));
  for (const Language &language : kLanguages) {
    if (language.code == locale || language.code == languageOnly) return language.folder;
  }
  return nullptr;
}

std::string_view Variable(const char *name) {
  const char *const value = std::getenv(name);
  return value != nullptr ? value : std::string_view();
}

// The locales that ask for untranslated texts.
bool IsUntranslated(std::string_view locale) { return locale == "C" || locale == "POSIX"; }

std::string_view LocaleOfMessages() {
  for (const char *name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    if (const std::string_view value = Variable(name); !value.empty()) return value;
  }
  return "C";
}

}  // namespace

std::vector<const char *> SystemLanguageFolders() {
  std::vector<const char *> folders;
  const std::string_view locale = LocaleOfMessages();
  if (!IsUntranslated(locale)) {
    std::string_view list = Variable("LANGUAGE");
    if (list.empty()) list = locale;
    while (!list.empty()) {
      const std::string_view wanted = list.substr(0, list.find(':'));
      list.remove_prefix(std::min(wanted.size() + 1, list.size()));
      if (IsUntranslated(wanted)) break;
      if (const char *folder = FolderFor(wanted)) folders.push_back(folder);
    }
  }
  folders.push_back(kEnglish);
  return folders;
}

}  // namespace orv
