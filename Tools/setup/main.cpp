#include <QApplication>
#include <QCommandLineParser>
#include <chrono>
#include <cstdlib>

#include "Accessibility.h"
#include "DesktopAppearance.h"
#include "FocusRing.h"
#include "SetupState.h"
#include "SetupStyle.h"
#include "SetupWindow.h"
#include "Theme.h"
#include "Translations.h"

namespace {

using setup::Appearance;

/// Colours that can be asked for by name.
struct NamedAppearance {
  const char *name;
  Appearance appearance;
};

constexpr NamedAppearance kAppearances[] = {
    {"light", {false, false}},
    {"dark", {true, false}},
    {"light-contrast", {false, true}},
    {"dark-contrast", {true, true}},
};

/// What the command line asks for.
struct Options {
  const client::Model *model = &client::DefaultModel();
  std::optional<Appearance> appearance = {};
};

Options ReadOptions(const QCoreApplication &application) {
  QCommandLineParser parser;
  parser.setApplicationDescription(
      QCoreApplication::translate("Options", "Sets the USB DJ mixers of the TRX-SELVA family."));
  parser.addHelpOption();
  parser.addVersionOption();
  const QCommandLineOption model(
      "model",
      QCoreApplication::translate("Options", "Show this model while no mixer is connected."),
      "NAME");
  const QCommandLineOption colours(
      "colors",
      QCoreApplication::translate("Options",
                                  "Use light, dark, light-contrast or dark-contrast "
                                  "colours, whatever the desktop uses."),
      "NAME");
  parser.addOption(model);
  parser.addOption(colours);
  parser.process(application);
  const auto refuse = [&parser](const QString &option) {
    std::fprintf(stderr, "trx-setup: --%s does not know \"%s\"\n", qPrintable(option),
                 qPrintable(parser.value(option)));
    std::exit(2);
  };
  Options options;
  if (parser.isSet(model)) {
    const auto matching = client::ModelsMatching(parser.value(model).toStdString());
    if (matching.size() != 1 || !matching.front()->served) refuse("model");
    options.model = matching.front();
  }
  if (parser.isSet(colours)) {
    for (const NamedAppearance &named : kAppearances) {
      if (parser.value(colours) == named.name) options.appearance = named.appearance;
    }
    if (!options.appearance) refuse("colors");
  }
  return options;
}

}  // namespace

int main(int argc, char **argv) {
  QApplication application(argc, argv);
  QCoreApplication::setApplicationName("trx-setup");
  QCoreApplication::setApplicationVersion(TRX_SETUP_VERSION);
  QGuiApplication::setDesktopFileName("trx-setup");
  const int32_t language = setup::InstallTranslations(application);
  QGuiApplication::setApplicationDisplayName(QCoreApplication::translate("main", "TRX Setup"));
  const Options options = ReadOptions(application);

  QApplication::setStyle(new setup::SetupStyle);
  setup::UseTheme(options.appearance.value_or(Appearance{}));
  setup::InstallAccessibility();
  const setup::KeyboardUse keyboardUse(&application);

  setup::DesktopAppearance desktop;
  QObject::connect(&desktop, &setup::DesktopAppearance::Changed, &application,
                   [](const Appearance &appearance) { setup::UseTheme(appearance); });
  if (!options.appearance) desktop.Start();

  setup::SetupState state(*options.model, language);
  setup::SetupWindow window(state);
  QObject::connect(&state, &setup::SetupState::Ready, &window, &QWidget::show);
  state.Start();

  const int result = QApplication::exec();
  // The window is gone; what was chosen is still sent, unless a mixer does not answer.
  constexpr std::chrono::seconds kPatience{6};
  if (!state.Jobs().WaitUntilDone(kPatience)) std::_Exit(result);
  return result;
}
