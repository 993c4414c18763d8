#include "Versions.h"

#include <array>

#include "LibraryText.h"
#include "PlatformWords.h"
#include "Text.h"

namespace trxctl {
namespace {

/// One installed piece of software.
struct Piece {
  std::string_view title;
  /// Its name in JSON.
  std::string_view name;
  StatusCode (*version)(ProductId, ORVStringRef *text);
  /// Whether there is one a model; if not, one serves all models.
  bool of_model;
  /// What to add when it is not installed; null for nothing.
  std::string_view PlatformWords::*note;
};

constexpr std::array<Piece, 4> kPieces{{
    {"package", "package", ORV_GetPkgVersionText, false, nullptr},
    {"driver", "driver", ORV_GetDriverVersionText, true, &PlatformWords::no_driver},
    {"setup application", "setup_application", ORV_GetUtilityVersionText, true, nullptr},
    {"library", "library", ORV_GetLibraryVersionText, false, nullptr},
}};

constexpr std::size_t kColumn = 20;

std::string NotInstalled(const Piece &piece) {
  const std::string note(piece.note == nullptr ? "" : kPlatformWords.*piece.note);
  return "not installed" + note;
}

ExitCode Run(const Session &session) {
  std::string text = session.terminal.Strong(std::string(session.model.name) + " versions") + '\n';
  nlohmann::ordered_json json{{"model", session.model.name}};
  for (const Piece &piece : kPieces) {
    ORVStringRef reference = nullptr;
    // The library and its package carry the name of one model and serve all of them.
    piece.version(piece.of_model ? session.model.id : ProductId{ORV_PRODUCT_TRX_SELVA}, &reference);
    const auto version = CharactersOf(reference);
    std::string title(piece.title);
    title.resize(kColumn, ' ');
    json[std::string(piece.name)] = nullptr;
    if (version) json[std::string(piece.name)] = *version;
    text += "  " + title + (version ? Printable(*version) : NotInstalled(piece)) + '\n';
  }
  session.terminal.Print(text, json);
  return ExitCode::kDone;
}

}  // namespace

Command MakeVersions(CLI::App &program) {
  CLI::App *app = program.add_subcommand("versions", "Show the versions of what is installed");
  app->footer(std::string("The version of trxctl itself is told by trxctl --version.\n"
                          "\n"
                          "Examples:\n"
                          "  trxctl versions\n"
                          "  trxctl versions --model TRX-LUMEN\n") +
              kSharedOptionsHelp);
  return {app, Run};
}

}  // namespace trxctl
