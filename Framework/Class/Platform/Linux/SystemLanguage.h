// The user's preferred languages among those of the bundle.
#pragma once

#include <vector>

namespace orv {

/// The names of the bundle's language folders in the order of the user's preference, as GNU gettext
/// reads the environment: LANGUAGE, a list, then LC_ALL, LC_MESSAGES or LANG; LANGUAGE counts only
/// where those do not ask for untranslated texts. English comes last.
std::vector<const char *> SystemLanguageFolders();

}  // namespace orv
