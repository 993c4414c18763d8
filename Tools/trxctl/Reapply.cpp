#include "Reapply.h"

#include <memory>
#include <optional>
#include <string>

#include "Plugged.h"
#include "Progress.h"
#include "Sending.h"
#include "Words.h"

namespace trxctl {
namespace {

/// What was sent and what was not, for both kinds of answer.
struct Outcome {
  std::string sentText;
  Json sent = Json::array();
  Json notSent = Json::array();
  std::vector<std::string> notes = {};
  client::Delivery delivery = {};
};

void Send(Outcome &outcome, const client::Setting &setting, bool isDryRun) {
  // What the model cannot take is no news.
  if (!setting.TakesChoices()) return;
  Json json = NameAsJson(setting);
  json.update(CurrentAsJson(setting));
  if (const auto reason = ReasonAgainstAgain(setting)) {
    json["reason"] = *reason;
    outcome.notSent.push_back(std::move(json));
    outcome.notes.push_back("Not sent: " + TitleOf(setting) + ": " + *reason);
    return;
  }
  if (!isDryRun) outcome.delivery.Add(client::SendAgain(setting).delivery);
  outcome.sent.push_back(std::move(json));
  outcome.sentText += "  " + TitleOf(setting) + ": " + CurrentAsText(setting) + '\n';
}

Failure NotAllSent() {
  return {ExitCode::kRefused, "not every stored setting can be sent again",
          "choose those anew that were not sent"};
}

ExitCode Run(const Session &session, bool isDryRun) {
  const client::Delivery reachable = client::Reachable();
  RequireReachable(reachable, "nothing was sent");
  const Progress progress(session.output);
  Outcome outcome;
  for (const client::Setting &setting : client::SettingsOf(session.model)) {
    Send(outcome, setting, isDryRun);
  }
  const std::string model(session.model.name);
  Answer answer{.text = session.output.Strong(model + (isDryRun ? " settings that would be sent"
                                                                : " settings sent again")) +
                        '\n' + outcome.sentText + DeliveryAsText(outcome.delivery),
                .json = {{"model", model}, {"sent", outcome.sent}, {"not_sent", outcome.notSent}},
                .notes = outcome.notes};
  if (isDryRun) {
    answer.json["dry_run"] = true;
    return session.output.Print(answer);
  }
  answer.json.update(DeliveryAsJson(outcome.delivery));
  const auto warnings = OtherModelWarnings(session.model, outcome.delivery);
  answer.notes.insert(answer.notes.end(), warnings.begin(), warnings.end());
  answer.failure = DeliveryFailure(outcome.delivery);
  if (!answer.failure && !outcome.notSent.empty()) answer.failure = NotAllSent();
  return session.output.Print(answer);
}

}  // namespace

Command MakeReapply(CLI::App &program) {
  CLI::App *app = program.add_subcommand("reapply", "Send all stored settings once more");
  const auto isDryRun = std::make_shared<bool>(false);
  const auto plugged = std::make_shared<std::optional<std::string>>();
  CLI::Option *dryRun = app->add_flag("--dry-run", *isDryRun, "Only tell what would be sent");
  app->add_option("--plugged", *plugged, "Only to this mixer, and only what is stored")
      ->type_name("DEVICE")
      ->excludes(dryRun);
  app->footer(
      std::string("For a mixer that was plugged in later. Where nothing is stored, the default is\n"
                  "sent. Ends with exit code 3 when a stored setting could not be sent.\n"
                  "\n"
                  "With --plugged, as run when a mixer is plugged in: waits up to half a minute\n"
                  "for the right to open it, and answers in one line. DEVICE is the mixer's\n"
                  "folder below /sys or its device file.\n"
                  "\n"
                  "Examples:\n"
                  "  trxctl reapply\n"
                  "  trxctl reapply --model TRX-VOLT\n"
                  "  trxctl reapply --plugged /dev/bus/usb/001/005\n") +
      kSharedOptionsHelp);
  return {app, [isDryRun, plugged](const Session &session) {
            return *plugged ? ReapplyToPlugged(session, **plugged) : Run(session, *isDryRun);
          }};
}

}  // namespace trxctl
