#include "Sending.h"

#include <cstring>

#include "Progress.h"
#include "UserInput.h"
#include "Words.h"
#include "client/Diagnosis.h"
#include "client/InputLists.h"
#include "client/SessionBus.h"

namespace trxctl {
namespace {

constexpr char kNothingSent[] = "nothing was sent";

Answer Started(const client::Setting &setting, std::string_view action,
               const std::string &sentence) {
  Json json = HeadingAsJson(setting);
  json["action"] = action;
  return {
      .text = std::string(setting.model->name) + ' ' + TitleOf(setting) + ' ' + sentence + ".\n",
      .json = std::move(json)};
}

/// What would be done, and where it would go.
Answer Planned(const client::Setting &setting, std::string_view action, const std::string &choice) {
  const client::Delivery reachable = client::Reachable();
  Answer answer = Started(setting, action, "would be sent: " + choice);
  answer.text += "Connected mixers: " + std::to_string(reachable.mixers.size()) +
                 ". Nothing was sent or stored.\n";
  answer.json["dry_run"] = true;
  answer.json["connected"] = reachable.isConnected;
  answer.json["mixers"] = Json::array();
  for (const client::MixerResult &result : reachable.mixers) {
    answer.json["mixers"].push_back(AccessAsJson(result));
  }
  return answer;
}

void AddResult(Answer &answer, const client::Setting &setting, const client::SendResult &result) {
  answer.json.update(ResultAsJson(result));
  answer.text += DeliveryAsText(result.delivery);
  const std::vector<std::string> warnings = OtherModelWarnings(*setting.model, result.delivery);
  answer.notes.insert(answer.notes.end(), warnings.begin(), warnings.end());
}

/// Adds the warning that the library has for what was done.
void AddWarning(Answer &answer, const client::Setting &setting, int32_t language) {
  const std::string warning =
      client::WarningText(setting, language)
          .value_or("The input selector of this channel may keep the choice from taking effect.");
  answer.notes.push_back("warning: " + warning);
  answer.json["warning"] = warning;
}

/// Tells when no program can have learned of a change.
void AddAnnouncement(Answer &answer) {
  const client::SessionBusState bus = client::ReachSessionBus();
  if (bus == client::SessionBusState::kNotNeeded) return;
  answer.json["announced"] = bus == client::SessionBusState::kReached;
  if (bus == client::SessionBusState::kMissing) {
    answer.notes.emplace_back("note: there is no session bus, so no other program knows of it");
  } else if (bus == client::SessionBusState::kNoAnswer) {
    answer.notes.emplace_back(
        "note: the session bus does not answer, so no other program knows of it");
  }
}

void RequireChoices(const client::Setting &setting) {
  if (setting.TakesChoices()) return;
  std::vector<std::string> others;
  for (const client::Model *model : client::ModelsWith(*setting.kind)) {
    if (client::SettingsOf(*setting.kind, *model).front().TakesChoices()) {
      others.emplace_back(model->name);
    }
  }
  const uint32_t sources = client::CountRawInputSources(setting.model->id, setting.channel);
  throw Failure{ExitCode::kRefused,
                std::string(setting.model->name) + " takes no " +
                    std::string(setting.kind->choice) + " from the list; that works for " +
                    Joined(others),
                "send a raw value instead: " + CommandLineFor(setting, "--raw SOURCE") +
                    ", with a SOURCE from 0 to " + std::to_string(sources - 1),
                others};
}

std::string CanBeSentAgain(const client::Setting &setting) {
  return "only " + setting.TextOf(0).value_or("") + " to " +
         setting.TextOf(setting.kind->againCount - 1).value_or("") + " can be sent again";
}

std::string LaterHint(const client::Setting &setting) {
  const bool again = setting.CanSendAgain(setting.Current());
  return "hint: once a mixer is connected, send it with: " +
         CommandLineFor(setting,
                        again ? "--again" : Quoted(ChoiceAsText(setting, setting.Current())));
}

}  // namespace

void RequireReachable(const client::Delivery &reachable, const std::string &message) {
  if (!reachable.isConnected) {
    throw Failure{ExitCode::kNoMixer, "no mixer is connected, so " + message,
                  "connect a mixer and switch it on, then try again"};
  }
  if (reachable.IsNoneOpened()) {
    const client::MixerResult &first = reachable.mixers.front();
    throw Failure{ExitCode::kNoAccess,
                  message + ": " + DescribeWithSerial(first.mixer) + ", " + OutcomeAsText(first),
                  OutcomeHint(first)};
  }
}

std::string DeliveryAsText(const client::Delivery &delivery) {
  if (!delivery.isConnected) return "";
  return "Sent to " + std::to_string(delivery.CountTaken()) + " of " +
         Counted(delivery.mixers.size(), "connected mixer") + ".\n";
}

std::optional<Failure> DeliveryFailure(const client::Delivery &delivery,
                                       const std::string &elsewhere) {
  std::vector<std::string> findings;
  std::string hint;
  for (const client::MixerResult &result : delivery.mixers) {
    if (result.outcome == client::Outcome::kDone) continue;
    findings.push_back(DescribeWithSerial(result.mixer) + ", " + OutcomeAsText(result));
    if (hint.empty()) hint = OutcomeHint(result);
  }
  if (findings.empty()) return std::nullopt;
  return Failure{delivery.IsNoneOpened() ? ExitCode::kNoAccess : ExitCode::kPartlySent,
                 Joined(findings, "; ") + elsewhere, hint};
}

std::vector<std::string> OtherModelWarnings(const client::Model &model,
                                            const client::Delivery &delivery) {
  std::vector<std::string> warnings;
  for (const client::MixerResult &result : delivery.mixers) {
    const client::Model *other = client::ModelRecognisedIn(result.mixer.product);
    if (other == nullptr || other == &model) continue;
    warnings.push_back("warning: " + DescribeWithSerial(result.mixer) + ", is no " +
                       std::string(model.name) + "; for its own settings use --model " +
                       std::string(other->name));
  }
  return warnings;
}

Failure NotStored(const client::Setting &setting) {
  std::string message = "the " + TitleOf(setting) + " could not be stored";
  const client::Check folder = client::CheckFolder();
  if (folder.reason != 0) {
    message += ": " + Printable(folder.obstacle) + ": " + std::strerror(folder.reason);
  }
  return {ExitCode::kNotStored, message, "trxctl diagnose tells what is wrong and what to do"};
}

ExitCode SetChoice(const Session &session, const client::Setting &setting, const std::string &given,
                   const SendOptions &options) {
  RequireChoices(setting);
  const uint32_t index = ChoiceNamed(given, setting.Choices(), setting.kind->choice);
  const auto choice = static_cast<int32_t>(index);
  if (options.isDryRun) {
    Answer plan = Planned(setting, "set", ChoiceAsText(setting, choice));
    plan.json.update(ChoiceAsJson(setting, choice));
    return session.output.Print(plan);
  }
  const Progress progress(session.output);
  const client::SendResult result = client::Set(setting, index);
  if (result.status == ORV_BAD_ARGUMENT) {
    throw Failure{ExitCode::kRefused, Quoted(given) + " was refused",
                  "see what there is to choose from: " + CommandLineFor(setting)};
  }
  Answer answer = Started(setting, "set", "set to " + ChoiceAsText(setting, choice));
  answer.json.update(ChoiceAsJson(setting, choice));
  answer.json["stored"] = result.isStored;
  AddResult(answer, setting, result);
  if (!result.delivery.isConnected) {
    answer.text += std::string("No mixer is connected; the setting is ") +
                   (result.isStored ? "stored anyway.\n" : "not stored either.\n");
    if (result.isStored) answer.notes.push_back(LaterHint(setting));
  }
  if (client::IsWarningFor(setting, result, choice)) {
    AddWarning(answer, setting, options.language);
  }
  AddAnnouncement(answer);
  answer.failure = DeliveryFailure(result.delivery, "; the setting is stored");
  if (!result.isStored) {
    if (answer.failure)
      answer.notes.push_back("Not sent: " + DeliveryFailure(result.delivery)->message);
    answer.failure = NotStored(setting);
  }
  return session.output.Print(answer);
}

std::optional<std::string> ReasonAgainstAgain(const client::Setting &setting) {
  const int32_t stored = setting.Current();
  switch (client::ObstacleToAgain(setting)) {
    case client::AgainObstacle::kTakesNoChoices:
      return std::string(setting.model->name) + " takes no choice from the list";
    case client::AgainObstacle::kNoChoice:
      return "the stored number " + std::to_string(stored) + " is no " +
             std::string(setting.kind->choice);
    case client::AgainObstacle::kOnlyFirst:
      return "the stored " + std::string(setting.kind->choice) + " is " +
             setting.TextOf(stored).value_or("") + "; " + CanBeSentAgain(setting);
    case client::AgainObstacle::kNone:
      break;
  }
  return std::nullopt;
}

ExitCode SendAgain(const Session &session, const client::Setting &setting,
                   const SendOptions &options) {
  RequireChoices(setting);
  const int32_t stored = setting.Current();
  if (const auto reason = ReasonAgainstAgain(setting)) {
    const auto text = setting.TextOf(stored);
    throw Failure{ExitCode::kRefused, *reason + ", so nothing was sent",
                  text ? "set it anew instead: " + CommandLineFor(setting, Quoted(*text))
                       : StoreOneHint(setting)};
  }
  if (options.isDryRun) {
    Answer plan = Planned(setting, "again", CurrentAsText(setting));
    plan.json.update(CurrentAsJson(setting));
    return session.output.Print(plan);
  }
  const Progress progress(session.output);
  const client::SendResult result = client::SendAgain(setting);
  RequireReachable(result.delivery, kNothingSent);
  Answer answer = Started(setting, "again", "sent again: " + CurrentAsText(setting));
  answer.json.update(CurrentAsJson(setting));
  AddResult(answer, setting, result);
  answer.failure = DeliveryFailure(result.delivery);
  return session.output.Print(answer);
}

ExitCode SendDefault(const Session &session, const client::Setting &setting,
                     const SendOptions &options) {
  const int32_t standard = setting.Default();
  if (options.isDryRun) {
    Answer plan = Planned(setting, "default", ChoiceAsText(setting, standard));
    plan.json.update(ChoiceAsJson(setting, standard));
    return session.output.Print(plan);
  }
  RequireReachable(client::Reachable(), kNothingSent);
  const Progress progress(session.output);
  const client::SendResult result = client::SendDefault(setting);
  Answer answer =
      Started(setting, "default", "set to its default for now: " + ChoiceAsText(setting, standard));
  answer.text += "This holds for now only. Nothing is stored; the stored choice is still " +
                 CurrentAsText(setting) + ". Back to it: " + CommandLineFor(setting, "--again") +
                 '\n';
  answer.json.update(ChoiceAsJson(setting, standard));
  answer.json["stored"] = ChoiceAsJson(setting, setting.Current());
  AddResult(answer, setting, result);
  AddAnnouncement(answer);
  answer.failure = DeliveryFailure(result.delivery);
  return session.output.Print(answer);
}

ExitCode SendRaw(const Session &session, const client::Setting &setting, const std::string &given,
                 int32_t group, const SendOptions &options) {
  const uint32_t source = SourceNamed(given, setting);
  const std::string value = "source " + std::to_string(source) + ", group " + std::to_string(group);
  if (options.isDryRun) {
    Answer plan = Planned(setting, "raw", value);
    plan.json["source"] = source;
    plan.json["group"] = group;
    return session.output.Print(plan);
  }
  RequireReachable(client::Reachable(), kNothingSent);
  const Progress progress(session.output);
  const client::SendResult result = client::SendRaw(setting, group, source);
  if (result.status == ORV_BAD_ARGUMENT) {
    throw Failure{ExitCode::kRefused, Quoted(given) + " was refused",
                  "see what the model takes: trxctl models"};
  }
  Answer answer = Started(setting, "raw", "sent raw: " + value);
  answer.text += "Nothing is stored.\n";
  answer.json["source"] = source;
  answer.json["group"] = group;
  AddResult(answer, setting, result);
  if (result.status == ORV_SUCCESS_WITH_WARNING) AddWarning(answer, setting, options.language);
  answer.failure = DeliveryFailure(result.delivery);
  return session.output.Print(answer);
}

}  // namespace trxctl
