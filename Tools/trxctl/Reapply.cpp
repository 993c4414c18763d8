#include "Reapply.h"

#include "Knob.h"
#include "Reach.h"
#include "SettingList.h"
#include "SettingSend.h"
#include "Text.h"

namespace trxctl {
namespace {

using Json = nlohmann::ordered_json;

/// What was sent and what was not, for both kinds of answer.
struct Outcome {
  std::string sent_text;
  std::string not_sent_text;
  Json sent = Json::array();
  Json not_sent = Json::array();
  /// Whether something that the model takes could not be sent.
  bool missed = false;
};

void SendKnob(Outcome &outcome, const Knob &knob) {
  Json json = NameAsJson(knob);
  json.update(ChoiceAsJson(knob, knob.Current()));
  auto reason = ReasonAgainstAgain(knob);
  if (!reason && !knob.SetAgain()) reason = "it was refused";
  if (!reason) {
    outcome.sent.push_back(std::move(json));
    outcome.sent_text += "  " + knob.Title() + ": " + CurrentAsText(knob) + '\n';
    return;
  }
  json["reason"] = *reason;
  outcome.not_sent.push_back(std::move(json));
  outcome.not_sent_text += "  " + knob.Title() + ": " + *reason + '\n';
  outcome.missed = outcome.missed || knob.TakesChoices();
}

ExitCode Run(const Session &session) {
  const Reach reach;
  RequireReached(reach, "nothing was sent");
  Outcome outcome;
  for (const Setting &setting : Settings()) {
    for (const Knob &knob : KnobsOf(setting, session.model)) SendKnob(outcome, knob);
  }
  const std::string model(session.model.name);
  std::string text = session.terminal.Strong(model + " settings sent again") + '\n' +
                     outcome.sent_text + ReachAsText(reach);
  if (!outcome.not_sent_text.empty()) text += "Not sent:\n" + outcome.not_sent_text;
  Json json{{"model", model}, {"sent", outcome.sent}, {"not_sent", outcome.not_sent}};
  json.update(ReachAsJson(reach));
  session.terminal.Print(text, json);
  return outcome.missed ? ExitCode::kRefused : ExitCode::kDone;
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
