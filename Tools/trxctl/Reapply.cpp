#include "Reapply.h"

#include "Sending.h"
#include "Words.h"

namespace trxctl {
namespace {

/// What was sent and what was not, for both kinds of answer.
struct Outcome {
  std::string sentText;
  std::string notSentText;
  Json sent = Json::array();
  Json notSent = Json::array();
  /// Whether something that the model takes could not be sent.
  bool isMissing = false;
};

void Send(Outcome &outcome, const client::Setting &setting) {
  Json json = NameAsJson(setting);
  json.update(ChoiceAsJson(setting, setting.Current()));
  const auto reason = ReasonAgainstAgain(setting);
  if (!reason) {
    client::SendAgain(setting);
    outcome.sent.push_back(std::move(json));
    outcome.sentText += "  " + TitleOf(setting) + ": " + CurrentAsText(setting) + '\n';
    return;
  }
  json["reason"] = *reason;
  outcome.notSent.push_back(std::move(json));
  outcome.notSentText += "  " + TitleOf(setting) + ": " + *reason + '\n';
  outcome.isMissing = outcome.isMissing || setting.TakesChoices();
}

ExitCode Run(const Session &session) {
  const client::Delivery reachable = client::Reachable();
  RequireReachable(reachable, "nothing was sent");
  Outcome outcome;
  for (const client::Setting &setting : client::SettingsOf(session.model)) Send(outcome, setting);
  const std::string model(session.model.name);
  std::string text = session.output.Strong(model + " settings sent again") + '\n' +
                     outcome.sentText + DeliveryAsText(reachable);
  if (!outcome.notSentText.empty()) text += "Not sent:\n" + outcome.notSentText;
  Json json{{"model", model}, {"sent", outcome.sent}, {"not_sent", outcome.notSent}};
  json.update(DeliveryAsJson(reachable));
  session.output.Print(text, json);
  return outcome.isMissing ? ExitCode::kRefused : ExitCode::kDone;
}

}  // namespace

Command MakeReapply(CLI::App &program) {
  CLI::App *app = program.add_subcommand("reapply", "Send all stored settings once more");
  app->footer(
      std::string("For a mixer that was plugged in later. Where nothing is stored, the default is\n"
                  "sent. Ends with exit code 3 when a stored setting could not be sent.\n"
                  "\n"
                  "Examples:\n"
                  "  trxctl reapply\n"
                  "  trxctl reapply --model TRX-VOLT\n") +
      kSharedOptionsHelp);
  return {app, Run};
}

}  // namespace trxctl
