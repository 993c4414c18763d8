#include "InfoCommands.h"

#include <algorithm>
#include <array>

#include "PlatformWords.h"
#include "Status.h"
#include "Words.h"
#include "client/InputLists.h"
#include "client/Settings.h"
#include "client/Versions.h"

namespace trxctl {
namespace {

Json SettingsAsJson(const client::Model &model) {
  Json json = Json::array();
  for (const client::SettingKind &kind : client::SettingKinds()) {
    const std::vector<client::Setting> settings = client::SettingsOf(kind, model);
    if (settings.empty()) continue;
    Json entry{{"setting", kind.name}};
    if (kind.hasChannels) entry["channels"] = settings.size();
    entry["settable"] = settings.front().TakesChoices();
    json.push_back(std::move(entry));
  }
  return json;
}

std::string SettingsAsText(const client::Model &model) {
  std::string text;
  for (const client::SettingKind &kind : client::SettingKinds()) {
    const std::vector<client::Setting> settings = client::SettingsOf(kind, model);
    if (settings.empty()) continue;
    text += "  " + std::string(kind.title);
    if (kind.hasChannels) text += ", " + Counted(settings.size(), "channel");
    if (!settings.front().TakesChoices()) text += " (to be read; to be set by raw values only)";
    text += '\n';
  }
  return text;
}

std::string StatusAsText(const client::Model &model) {
  std::vector<std::string> names = StatusOf(model);
  for (std::string &name : names) std::replace(name.begin(), name.end(), '_', ' ');
  return "  status: " + Joined(names) + '\n';
}

ExitCode RunModels(const Session &session) {
  std::string text;
  Json models = Json::array();
  for (const client::Model *model : session.Models()) {
    const int32_t rawChannels = client::CountRawInputChannels(model->id);
    text += session.output.Strong(std::string(model->name)) + '\n' + SettingsAsText(*model) +
            "  raw input values, " + Counted(static_cast<std::size_t>(rawChannels), "channel") +
            '\n' + StatusAsText(*model);
    models.push_back({{"model", model->name},
                      {"product_id", model->id},
                      {"settings", SettingsAsJson(*model)},
                      {"raw_input_channels", rawChannels},
                      {"status", StatusOf(*model)}});
  }
  session.output.Print(text, {{"models", models}});
  return ExitCode::kDone;
}

/// One installed piece of software.
struct Piece {
  client::InstalledPiece piece;
  std::string_view title;
  /// Its name in JSON.
  std::string_view name;
  /// What to add when it is not installed; null for nothing.
  std::string_view PlatformWords::*note;
};

constexpr std::array<Piece, 4> kPieces{{
    {client::InstalledPiece::kPackage, "package", "package", nullptr},
    {client::InstalledPiece::kDriver, "driver", "driver", &PlatformWords::noDriver},
    {client::InstalledPiece::kSetupApplication, "setup application", "setup_application", nullptr},
    {client::InstalledPiece::kLibrary, "library", "library", nullptr},
}};

constexpr std::size_t kColumn = 20;

std::string NotInstalled(const Piece &piece) {
  const std::string note(piece.note == nullptr ? "" : kPlatformWords.*piece.note);
  return "not installed" + note;
}

ExitCode RunVersions(const Session &session) {
  std::string text = session.output.Strong(std::string(session.model.name) + " versions") + '\n';
  Json json{{"model", session.model.name}};
  for (const Piece &piece : kPieces) {
    const auto version = client::VersionOf(piece.piece, session.model);
    std::string title(piece.title);
    title.resize(kColumn, ' ');
    json[std::string(piece.name)] = nullptr;
    if (version) json[std::string(piece.name)] = *version;
    text += "  " + title + (version ? Printable(*version) : NotInstalled(piece)) + '\n';
  }
  session.output.Print(text, json);
  return ExitCode::kDone;
}

}  // namespace

Command MakeModels(CLI::App &program) {
  CLI::App *app = program.add_subcommand("models", "List the models and what each accepts");
  app->footer(std::string("Examples:\n"
                          "  trxctl models\n"
                          "  trxctl models --model TRX-VOLT\n") +
              kSharedOptionsHelp);
  return {app, RunModels};
}

Command MakeVersions(CLI::App &program) {
  CLI::App *app = program.add_subcommand("versions", "Show the versions of what is installed");
  app->footer(std::string("trxctl --version prints the version of trxctl itself.\n"
                          "\n"
                          "Examples:\n"
                          "  trxctl versions\n"
                          "  trxctl versions --model TRX-LUMEN\n") +
              kSharedOptionsHelp);
  return {app, RunVersions};
}

}  // namespace trxctl
