#include "SettingSend.h"

#include <charconv>

#include "Choice.h"
#include "Failure.h"
#include "InputLists.h"
#include "LibraryText.h"
#include "PlatformWords.h"
#include "Reach.h"
#include "SettingList.h"
#include "Text.h"

namespace trxctl {
namespace {

using Json = nlohmann::ordered_json;

constexpr char kNothingSent[] = "nothing was sent";

/// What was done, for both kinds of answer.
struct Done {
  std::string text;
  Json json;
};

Done Started(const Knob &knob, std::string_view action, const std::string &sentence) {
  Json json = HeadingAsJson(knob);
  json["action"] = action;
  return {std::string(knob.model().name) + ' ' + knob.Title() + ' ' + sentence + ".\n",
          std::move(json)};
}

/// Adds the warning that the library has for what was done.
void AddWarning(Done &done, const Knob &knob, int32_t language) {
  ORVStringRef text = nullptr;
  knob.setting().extras.warning(knob.model().id, knob.channel(), ORV_SUCCESS_WITH_WARNING, language,
                                &text);
  const std::string warning = CharactersOf(text).value_or(
      "The input selector of this channel may keep the choice from taking effect.");
  done.text += "warning: " + warning + '\n';
  done.json["warning"] = warning;
}

/// " to 2 mixers"; nothing when the system does not tell to how many.
std::string ToMixersOf(const Reach &reach) {
  if (reach.connected && reach.mixers.empty()) return "";
  return " to " + Counted(reach.accessible, "mixer");
}

void RequireChoices(const Knob &knob) {
  if (knob.TakesChoices()) return;
  const Setting &setting = knob.setting();
  std::vector<std::string> others;
  for (const Model &model : Models()) {
    const std::vector<Knob> knobs = KnobsOf(setting, model);
    if (!knobs.empty() && knobs.front().TakesChoices()) others.emplace_back(model.name);
  }
  throw Failure{ExitCode::kRefused,
                std::string(knob.model().name) + " takes no " + std::string(setting.choice) +
                    " from the list; that works for " + Joined(others),
                "send a raw value instead: " + knob.CommandLine("--raw SOURCE") +
                    ", with a SOURCE from 0 to " +
                    std::to_string(CountRawInputSources(knob.model().id, knob.channel()) - 1),
                others};
}

std::string CanBeSentAgain(const Knob &knob) {
  return "only " + knob.TextOf(0).value_or("") + " to " +
         knob.TextOf(knob.setting().again_count - 1).value_or("") + " can be sent again";
}

/// The number in a text, decimal or, after 0x, hexadecimal.
std::optional<uint32_t> NumberIn(std::string_view text) {
  const bool hexadecimal = text.starts_with("0x") || text.starts_with("0X");
  if (hexadecimal) text.remove_prefix(2);
  uint32_t number = 0;
  const char *end = text.data() + text.size();
  const auto [rest, error] = std::from_chars(text.data(), end, number, hexadecimal ? 16 : 10);
  if (error != std::errc() || rest != end) return std::nullopt;
  return number;
}

uint32_t SourceNamed(const Knob &knob, const std::string &given) {
  const uint32_t count = CountRawInputSources(knob.model().id, knob.channel());
  const auto source = NumberIn(given);
  if (!source || *source >= count) {
    throw Failure{ExitCode::kRefused,
                  Quoted(given) + " is no source code of " + std::string(knob.model().name) + ' ' +
                      knob.Title(),
                  "choose a number from 0 to " + std::to_string(count - 1)};
  }
  return *source;
}

}  // namespace

void SetChoice(const Session &session, const Knob &knob, const std::string &given,
               int32_t language) {
  RequireChoices(knob);
  const Setting &setting = knob.setting();
  const uint32_t index = ChoiceNamed(given, knob.Choices(), setting.choice, setting.first_number);
  const StatusCode status = knob.Set(index);
  if (status == ORV_BAD_ARGUMENT) {
    throw Failure{ExitCode::kRefused, Quoted(given) + " was refused",
                  "see what there is to choose from: " + knob.CommandLine()};
  }
  const Reach reach;
  const auto chosen = static_cast<int32_t>(index);
  // The library does not tell when the settings file cannot be written; reading the setting back
  // does.
  if (knob.Current() != chosen) {
    throw Failure{
        ExitCode::kNotStored,
        "the " + knob.Title() + " was sent" + ToMixersOf(reach) + ", but could not be stored",
        std::string(kPlatformWords.not_stored)};
  }
  Done done = Started(knob, "set", "set to " + CurrentAsText(knob));
  done.json.update(ChoiceAsJson(knob, chosen));
  done.json.update(ReachAsJson(reach));
  if (reach.connected) {
    done.text += ReachAsText(reach);
  } else {
    done.text +=
        "No mixer is connected; the setting is stored all the same.\n"
        "hint: once a mixer is connected, send it with: " +
        knob.CommandLine(knob.CanSendAgain(chosen) ? "--again" : Quoted(CurrentAsText(knob))) +
        '\n';
  }
  if (status == ORV_SUCCESS_WITH_WARNING) AddWarning(done, knob, language);
  session.terminal.Print(done.text, done.json);
}

std::optional<std::string> ReasonAgainstAgain(const Knob &knob) {
  const int32_t stored = knob.Current();
  const auto text = knob.TextOf(stored);
  if (!knob.TakesChoices()) {
    return std::string(knob.model().name) + " takes no choice from the list";
  }
  if (!text) {
    return "the stored number " + std::to_string(stored) + " is no " +
           std::string(knob.setting().choice);
  }
  if (!knob.CanSendAgain(stored)) {
    return "the stored " + std::string(knob.setting().choice) + " is " + *text + "; " +
           CanBeSentAgain(knob);
  }
  return std::nullopt;
}

void SendAgain(const Session &session, const Knob &knob) {
  RequireChoices(knob);
  const int32_t stored = knob.Current();
  const auto reason = ReasonAgainstAgain(knob);
  if (reason || !knob.SetAgain()) {
    const auto text = knob.TextOf(stored);
    throw Failure{
        ExitCode::kRefused, reason.value_or("it was refused") + ", so nothing was sent",
        text ? "set it anew instead: " + knob.CommandLine(Quoted(*text)) : StoreOneHint(knob)};
  }
  const Reach reach;
  RequireReached(reach, kNothingSent);
  Done done = Started(knob, "again", "sent again: " + CurrentAsText(knob));
  done.json.update(ChoiceAsJson(knob, stored));
  done.json.update(ReachAsJson(reach));
  session.terminal.Print(done.text + ReachAsText(reach), done.json);
}

void SendDefault(const Session &session, const Knob &knob) {
  const Reach reach;
  RequireReached(reach, kNothingSent);
  knob.setting().extras.set_default(knob.model().id, knob.channel());
  // The default of a channel is the choice at its own place.
  const int32_t standard = knob.channel();
  Done done = Started(knob, "default",
                      "set to its default for the time being: " +
                          knob.TextOf(standard).value_or(std::to_string(standard)));
  done.text += "Nothing is stored; the stored choice is still " + CurrentAsText(knob) +
               ". Back to it: " + knob.CommandLine("--again") + '\n';
  done.json.update(ChoiceAsJson(knob, standard));
  done.json["stored"] = ChoiceAsJson(knob, knob.Current());
  done.json.update(ReachAsJson(reach));
  session.terminal.Print(done.text + ReachAsText(reach), done.json);
}

void SendRaw(const Session &session, const Knob &knob, const std::string &source, int32_t group,
             int32_t language) {
  const uint32_t code = SourceNamed(knob, source);
  const Reach reach;
  RequireReached(reach, kNothingSent);
  const StatusCode status =
      knob.setting().extras.set_raw(knob.model().id, knob.channel(), group, code);
  if (status == ORV_BAD_ARGUMENT) {
    throw Failure{ExitCode::kRefused, Quoted(source) + " was refused",
                  "see what the model takes: trxctl models"};
  }
  Done done = Started(
      knob, "raw", "sent raw: source " + std::to_string(code) + ", group " + std::to_string(group));
  done.text += "Nothing is stored.\n" + ReachAsText(reach);
  done.json["source"] = code;
  done.json["group"] = group;
  done.json.update(ReachAsJson(reach));
  if (status == ORV_SUCCESS_WITH_WARNING) AddWarning(done, knob, language);
  session.terminal.Print(done.text, done.json);
}

}  // namespace trxctl
