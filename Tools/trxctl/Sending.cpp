#include "Sending.h"

#include <algorithm>
#include <cstring>

#include "PlatformWords.h"
#include "UserInput.h"
#include "Words.h"
#include "client/InputLists.h"

namespace trxctl {
namespace {

constexpr char kNothingSent[] = "nothing was sent";

/// What was done, for both kinds of answer.
struct Done {
  std::string text;
  Json json;
};

Done Started(const client::Setting &setting, std::string_view action, const std::string &sentence) {
  Json json = HeadingAsJson(setting);
  json["action"] = action;
  return {std::string(setting.model->name) + ' ' + TitleOf(setting) + ' ' + sentence + ".\n",
          std::move(json)};
}

/// Adds the warning that the library has for what was done, if there is one.
void AddWarning(Done &done, const client::Setting &setting, const client::SendResult &result,
                int32_t language) {
  if (result.status != ORV_SUCCESS_WITH_WARNING) return;
  const std::string warning =
      client::WarningText(setting, language)
          .value_or("The input selector of this channel may keep the choice from taking effect.");
  done.text += "warning: " + warning + '\n';
  done.json["warning"] = warning;
}

/// " to 2 mixers"; nothing when the system does not tell to how many.
std::string ToMixersOf(const client::Delivery &delivery) {
  if (delivery.connected && delivery.mixers.empty()) return "";
  return " to " + Counted(delivery.Taken(), "mixer");
}

/// What is wrong with each mixer that was not opened, and what to do about it.
std::string NotSentAsText(const client::Delivery &delivery) {
  std::string text;
  int refusal = 0;
  for (const client::MixerResult &result : delivery.mixers) {
    if (result.refusal == 0) continue;
    text += "Not sent to " + Describe(result.mixer) +
            ", which may not be opened: " + std::strerror(result.refusal) + '\n';
    if (refusal == 0) refusal = result.refusal;
  }
  if (refusal != 0) text += "hint: " + AccessHint(refusal) + '\n';
  return text;
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

Failure NotStored(const client::Setting &setting, const client::SendResult &result) {
  return {ExitCode::kNotStored,
          "the " + TitleOf(setting) + " was sent" + ToMixersOf(result.delivery) +
              ", but could not be stored",
          std::string(kPlatformWords.notStored)};
}

std::string LaterHint(const client::Setting &setting) {
  const bool again = setting.CanSendAgain(setting.Current());
  return "hint: once a mixer is connected, send it with: " +
         CommandLineFor(setting, again ? "--again" : Quoted(CurrentAsText(setting))) + '\n';
}

}  // namespace

void RequireReachable(const client::Delivery &reachable, const std::string &message) {
  if (!reachable.connected) {
    throw Failure{ExitCode::kNoMixer, "no mixer is connected, so " + message,
                  "connect a mixer and switch it on, then try again"};
  }
  if (reachable.IsNoneOpened()) {
    const client::MixerResult &first = reachable.mixers.front();
    throw Failure{ExitCode::kNoAccess,
                  message + ": " + Describe(first.mixer) + " may not be opened (" +
                      std::strerror(first.refusal) + ")",
                  AccessHint(first.refusal)};
  }
}

std::string DeliveryAsText(const client::Delivery &delivery) {
  if (delivery.mixers.empty()) return "Sent; the system does not tell to how many mixers.\n";
  return "Sent to " + std::to_string(delivery.Taken()) + " of " +
         Counted(delivery.mixers.size(), "connected mixer") + ".\n" + NotSentAsText(delivery);
}

void SetChoice(const Session &session, const client::Setting &setting, const std::string &given,
               int32_t language) {
  RequireChoices(setting);
  const uint32_t index =
      ChoiceNamed(given, setting.Choices(), setting.kind->choice, setting.kind->firstNumber);
  const client::SendResult result = client::Set(setting, index);
  if (result.status == ORV_BAD_ARGUMENT) {
    throw Failure{ExitCode::kRefused, Quoted(given) + " was refused",
                  "see what there is to choose from: " + CommandLineFor(setting)};
  }
  if (!result.isStored) throw NotStored(setting, result);
  Done done = Started(setting, "set", "set to " + CurrentAsText(setting));
  done.json.update(ChoiceAsJson(setting, static_cast<int32_t>(index)));
  done.json.update(DeliveryAsJson(result.delivery));
  done.text +=
      result.delivery.connected
          ? DeliveryAsText(result.delivery)
          : "No mixer is connected; the setting is stored all the same.\n" + LaterHint(setting);
  AddWarning(done, setting, result, language);
  session.output.Print(done.text, done.json);
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

void SendAgain(const Session &session, const client::Setting &setting) {
  RequireChoices(setting);
  if (const auto reason = ReasonAgainstAgain(setting)) {
    const auto text = setting.TextOf(setting.Current());
    throw Failure{ExitCode::kRefused, *reason + ", so nothing was sent",
                  text ? "set it anew instead: " + CommandLineFor(setting, Quoted(*text))
                       : StoreOneHint(setting)};
  }
  const client::SendResult result = client::SendAgain(setting);
  RequireReachable(result.delivery, kNothingSent);
  Done done = Started(setting, "again", "sent again: " + CurrentAsText(setting));
  done.json.update(ChoiceAsJson(setting, setting.Current()));
  done.json.update(DeliveryAsJson(result.delivery));
  session.output.Print(done.text + DeliveryAsText(result.delivery), done.json);
}

void SendDefault(const Session &session, const client::Setting &setting) {
  RequireReachable(client::Reachable(), kNothingSent);
  const client::SendResult result = client::SendDefault(setting);
  const int32_t standard = setting.Default();
  Done done = Started(setting, "default",
                      "set to its default for the time being: " +
                          setting.TextOf(standard).value_or(std::to_string(standard)));
  done.text += "Nothing is stored; the stored choice is still " + CurrentAsText(setting) +
               ". Back to it: " + CommandLineFor(setting, "--again") + '\n';
  done.json.update(ChoiceAsJson(setting, standard));
  done.json["stored"] = ChoiceAsJson(setting, setting.Current());
  done.json.update(DeliveryAsJson(result.delivery));
  session.output.Print(done.text + DeliveryAsText(result.delivery), done.json);
}

void SendRaw(const Session &session, const client::Setting &setting, const std::string &given,
             int32_t group, int32_t language) {
  const uint32_t source = SourceNamed(given, setting);
  RequireReachable(client::Reachable(), kNothingSent);
  const client::SendResult result = client::SendRaw(setting, group, source);
  if (result.status == ORV_BAD_ARGUMENT) {
    throw Failure{ExitCode::kRefused, Quoted(given) + " was refused",
                  "see what the model takes: trxctl models"};
  }
  Done done =
      Started(setting, "raw",
              "sent raw: source " + std::to_string(source) + ", group " + std::to_string(group));
  done.text += "Nothing is stored.\n" + DeliveryAsText(result.delivery);
  done.json["source"] = source;
  done.json["group"] = group;
  done.json.update(DeliveryAsJson(result.delivery));
  AddWarning(done, setting, result, language);
  session.output.Print(done.text, done.json);
}

}  // namespace trxctl
