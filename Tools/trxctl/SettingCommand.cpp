#include "SettingCommand.h"

#include <algorithm>
#include <memory>

#include "Failure.h"
#include "InputLists.h"
#include "Knob.h"
#include "Language.h"
#include "SettingList.h"
#include "SettingRequest.h"
#include "SettingSend.h"
#include "Text.h"

namespace trxctl {
namespace {

bool IsOfferedByAny(const Setting &setting) {
  return std::any_of(Models().begin(), Models().end(),
                     [&setting](const Model &model) { return !KnobsOf(setting, model).empty(); });
}

void RequireOffered(const Setting &setting, const Model &chosen) {
  if (!KnobsOf(setting, chosen).empty()) return;
  const std::string message = std::string(chosen.name) + " has no " + std::string(setting.title);
  std::vector<std::string> others;
  for (const Model &model : Models()) {
    if (!KnobsOf(setting, model).empty()) others.emplace_back(model.name);
  }
  if (others.empty()) {
    throw Failure{ExitCode::kRefused, message, "no model offers a " + std::string(setting.title)};
  }
  throw Failure{ExitCode::kRefused, message,
                "models that have one: " + Joined(others) + "; name one: trxctl " +
                    std::string(setting.name) + " --model " + others.front(),
                others};
}

/// The channel that the user named, counted from 0.
int32_t ChannelNamed(const std::string &given, const Setting &setting, const Model &model,
                     std::size_t count) {
  std::vector<std::string> channels;
  for (std::size_t channel = 1; channel <= count; ++channel) {
    channels.push_back(std::to_string(channel));
  }
  const auto found = std::find(channels.begin(), channels.end(), given);
  if (found == channels.end()) {
    throw Failure{ExitCode::kRefused,
                  Quoted(given) + " is no channel of " + std::string(model.name) + ' ' +
                      std::string(setting.title),
                  "choose one of " + Joined(channels), channels};
  }
  return static_cast<int32_t>(found - channels.begin());
}

void RunOnKnob(const Session &session, const Knob &knob, const SettingRequest &request) {
  const int32_t language = request.language ? LanguageNamed(*request.language) : kSystemLanguage;
  if (request.again) return SendAgain(session, knob);
  if (request.to_default) return SendDefault(session, knob);
  if (request.raw_source) {
    return SendRaw(session, knob, *request.raw_source, request.raw_group, language);
  }
  if (request.words.empty()) return ListChoices(session, knob);
  SetChoice(session, knob, request.Choice(), language);
}

void Run(const Session &session, const Setting &setting, SettingRequest request) {
  const Model &model = session.model;
  RequireOffered(setting, model);
  if (!setting.has_channels) {
    request.RequireOneAction(true);
    return RunOnKnob(session, Knob(setting, model), request);
  }
  const auto channel = request.TakeChannel();
  request.RequireOneAction(channel.has_value());
  const std::vector<Knob> knobs = KnobsOf(setting, model);
  if (!channel) return ListChannels(session, knobs);
  // Raw values reach channels, too, that have no list.
  const std::size_t count =
      request.raw_source ? static_cast<std::size_t>(CountRawInputChannels(model.id)) : knobs.size();
  RunOnKnob(session, Knob(setting, model, ChannelNamed(*channel, setting, model, count)), request);
}

}  // namespace

Command MakeSettingCommand(CLI::App &program, const Setting &setting) {
  CLI::App *app = program.add_subcommand(std::string(setting.name),
                                         "Show or set " + std::string(setting.about));
  app->footer("Examples:\n" + std::string(setting.examples) + std::string(kSharedOptionsHelp));
  const auto request = std::make_shared<SettingRequest>();
  AddSettingOptions(*app, setting, *request);
  return {app,
          [&setting, request](const Session &session) {
            Run(session, setting, *request);
            return ExitCode::kDone;
          },
          !IsOfferedByAny(setting)};
}

}  // namespace trxctl
