#include "Translations.h"

#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <algorithm>

#include "client/Languages.h"

namespace setup {
namespace {

/// The number of a language in the library; English for one that it does not have.
int32_t NumberOf(const QString &language) {
  const auto languages = client::Languages();
  const auto found =
      std::find_if(languages.begin(), languages.end(), [&language](const client::Language &known) {
        return language.toStdString().starts_with(known.code);
      });
  return found == languages.end() ? 0 : static_cast<int32_t>(found - languages.begin());
}

}  // namespace

int32_t InstallTranslations(QCoreApplication &application) {
  auto *own = new QTranslator(&application);
  if (!own->load(QLocale(), "trx-setup", "_", ":/translations")) return 0;
  QCoreApplication::installTranslator(own);
  auto *qt = new QTranslator(&application);
  if (qt->load(QLocale(own->language()), "qtbase", "_",
               QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QCoreApplication::installTranslator(qt);
  }
  return NumberOf(own->language());
}

}  // namespace setup
