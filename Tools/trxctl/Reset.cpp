#include "Reset.h"

#include <cstdio>
#include <iostream>
#include <memory>

#include <unistd.h>

#include "Progress.h"
#include "Sending.h"
#include "Words.h"

namespace trxctl {
namespace {

/// What the command line asked for.
struct Request {
  bool isSure = false;
  bool isDryRun = false;
};

/// The settings that have something else stored than their default.
std::vector<client::Setting> SettingsToReset(const client::Model &model) {
  std::vector<client::Setting> settings = client::SettingsOf(model);
  std::erase_if(settings, [](const client::Setting &setting) {
    return !setting.TakesChoices() || setting.Current() == setting.Default();
  });
  return settings;
}

std::string Row(const client::Setting &setting) {
  return "  " + TitleOf(setting) + ": " + ChoiceAsText(setting, setting.Current()) + " -> " +
         ChoiceAsText(setting, setting.Default()) + '\n';
}

/// Asks the person at the terminal. Without one nothing is set back unless --yes is given.
void RequireConsent(const Session &session, const std::string &rows) {
  if (isatty(STDIN_FILENO) != 1 || !session.output.IsSeen()) {
    throw Failure{ExitCode::kUsage, "reset asks first, and there is no terminal to ask on",
                  "add --yes, or --dry-run to see what would be set back"};
  }
  session.output.Note(rows + "Set these back to their defaults? [y/N]");
  std::string reply;
  std::getline(std::cin, reply);
  if (reply != "y" && reply != "yes") {
    throw Failure{ExitCode::kRefused, "nothing was set back", "answer y to set it back"};
  }
}

ExitCode Run(const Session &session, const Request &request) {
  const std::vector<client::Setting> settings = SettingsToReset(session.model);
  const std::string model(session.model.name);
  Answer answer{.text = "", .json = {{"model", model}, {"reset", Json::array()}}};
  std::string rows;
  for (const client::Setting &setting : settings) {
    rows += Row(setting);
    Json entry = NameAsJson(setting);
    entry.update(ChoiceAsJson(setting, setting.Default()));
    entry["before"] = ChoiceAsJson(setting, setting.Current());
    answer.json["reset"].push_back(std::move(entry));
  }
  if (request.isDryRun) answer.json["dry_run"] = true;
  if (settings.empty()) {
    answer.text = model + ": all settings are at their defaults.\n";
    return session.output.Print(answer);
  }
  if (!request.isSure && !request.isDryRun) RequireConsent(session, rows);
  answer.text = session.output.Strong(model + (request.isDryRun ? " settings that would be set back"
                                                                : " settings set back")) +
                '\n' + rows;
  if (request.isDryRun) return session.output.Print(answer);

  const Progress progress(session.output);
  client::Delivery delivery;
  for (const client::Setting &setting : settings) {
    const auto result = client::Set(setting, static_cast<uint32_t>(setting.Default()));
    delivery.Add(result.delivery);
    if (!result.isStored) answer.failure = NotStored(setting);
  }
  answer.text += DeliveryAsText(delivery);
  answer.json.update(DeliveryAsJson(delivery));
  answer.notes = OtherModelWarnings(session.model, delivery);
  if (!answer.failure) answer.failure = DeliveryFailure(delivery, "; the settings are stored");
  return session.output.Print(answer);
}

}  // namespace

Command MakeReset(CLI::App &program) {
  CLI::App *app = program.add_subcommand("reset", "Set the stored settings back to the defaults");
  app->footer(std::string("Each setting is sent, stored and announced. Asks first.\n"
                          "\n"
                          "Examples:\n"
                          "  trxctl reset --dry-run    what would be set back\n"
                          "  trxctl reset --yes        without a question\n") +
              kSharedOptionsHelp);
  const auto request = std::make_shared<Request>();
  app->add_flag("--yes", request->isSure, "Do not ask");
  app->add_flag("--dry-run", request->isDryRun, "Only tell what would be set back");
  return {app, [request](const Session &session) { return Run(session, *request); }};
}

}  // namespace trxctl
