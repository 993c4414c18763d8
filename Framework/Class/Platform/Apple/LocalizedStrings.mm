#include "LocalizedStrings.h"

#import "FoundationCall.h"
#include "PropertyList.h"
#include "Text.h"

namespace orv {
namespace {

constexpr const char *kTable = "Localizable";

ORVStringRef Kept(const std::optional<std::string> &text) {
  return text ? KeptText(*text) : nullptr;
}

}  // namespace

ORVStringRef LocalizedString(const std::string &bundlePath, const char *key) {
  return Kept(UnlessRaised<std::optional<std::string>>(std::nullopt, [&] {
    NSBundle *const bundle = [NSBundle bundleWithPath:StringOf(bundlePath)];
    return CharactersOf([bundle localizedStringForKey:StringOf(key)
                                                value:@""
                                                table:StringOf(kTable)]);
  }));
}

// The file of a language is a property list.
ORVStringRef StringInLanguage(const std::string &bundlePath, const char *languageFolder,
                              const char *key) {
  const auto resources = UnlessRaised<std::optional<std::string>>(std::nullopt, [&] {
    return CharactersOf([[NSBundle bundleWithPath:StringOf(bundlePath)] resourcePath]);
  });
  if (!resources) return nullptr;
  const auto strings =
      PropertyList::ReadFile(*resources + "/" + languageFolder + ".lproj/" + kTable + ".strings");
  return strings ? Kept(strings->TextForKey(key)) : nullptr;
}

}  // namespace orv
