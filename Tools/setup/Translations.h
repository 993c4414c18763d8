#pragma once

#include <QCoreApplication>
#include <cstdint>

namespace setup {

/// Loads the texts of this program and of Qt in the user's language, as far as there are any.
///
/// @return the number of that language in the library, for the warnings.
int32_t InstallTranslations(QCoreApplication &application);

}  // namespace setup
