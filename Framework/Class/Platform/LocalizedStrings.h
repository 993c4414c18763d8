// The library's translated texts, in the library's bundle with one folder for each language. Any
// thread.
#pragma once

#include <string>

#include <TRX-SELVASetup/TRX-SELVASetup.h>

namespace orv {

/// The text for a key in the language of the user's system, or in English where the bundle has no
/// such language. Null when the bundle is missing. When the key is missing, null or the key itself,
/// depending on the platform.
ORVStringRef LocalizedString(const std::string &bundlePath, const char *key);

/// The text for a key in one language, given by the name of its folder. Null when the folder or the
/// key is missing.
ORVStringRef StringInLanguage(const std::string &bundlePath, const char *languageFolder,
                              const char *key);

}  // namespace orv
