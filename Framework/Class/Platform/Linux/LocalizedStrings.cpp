#include "LocalizedStrings.h"

#include "PropertyList.h"
#include "SystemLanguage.h"
#include "Text.h"

namespace orv {

ORVStringRef LocalizedString(const std::string &bundlePath, const char *key) {
  for (const char *folder : SystemLanguageFolders()) {
    if (ORVStringRef text = StringInLanguage(bundlePath, folder, key)) return text;
  }
  return nullptr;
}

ORVStringRef StringInLanguage(const std::string &bundlePath, const char *languageFolder,
                              const char *key) {
  const auto strings = PropertyList::ReadFile(bundlePath + "/Resources/" + languageFolder +
                                              ".lproj/Localizable.strings");
  if (!strings) return nullptr;
  const auto text = strings->TextForKey(key);
  return text ? KeptText(*text) : nullptr;
}

}  // namespace orv
