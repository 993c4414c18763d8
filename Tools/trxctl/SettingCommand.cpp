#include "SettingCommand.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <utility>

#include "Listing.h"
#include "Sending.h"
#include "UserInput.h"
#include "Words.h"
#include "client/InputLists.h"
#include "client/Languages.h"

namespace trxctl {
namespace {

// The library shifts the group, plus 1, into four bits.
constexpr int32_t kLowestGroup = -1;
constexpr int32_t kHighestGroup = 14;

/// What the command line of a setting asked for.
struct Request {
  /// The channel, where the setting has channels, and the words of the choice.
  std::vector<std::string> words;
  bool isAgain = false;
  bool isDefault = false;
  bool isDryRun = false;
  std::optional<std::string> rawSource;
  int32_t rawGroup = kLowestGroup;
  std::optional<std::string> language;

  /// Takes the channel off the words: the number as the user gave it, if there is one.
  std::optional<std::string> TakeChannel() {
    if (words.empty()) return std::nullopt;
    std::string channel = words.front();
    words.erase(words.begin());
    return channel;
  }

  std::string Choice() const { return Joined(words, " "); }

  /// Throws Failure when the request asks for several things at once.
  void RequireOneAction(bool isChannelGiven) const;
};

void Request::RequireOneAction(bool isChannelGiven) const {
  std::vector<std::string> actions;
  if (isAgain) actions.emplace_back("--again");
  if (isDefault) actions.emplace_back("--default");
  if (rawSource) actions.emplace_back("--raw");
  if (!words.empty()) actions.push_back(Quoted(Choice()));
  if (actions.size() > 1) {
    throw Failure{ExitCode::kUsage, Joined(actions, " and ") + " do not go together",
                  "leave out all but one of them"};
  }
  if (rawGroup != kLowestGroup && !rawSource) {
    throw Failure{ExitCode::kUsage, "--group goes with --raw only", "add --raw SOURCE"};
  }
  if (!isChannelGiven && !actions.empty()) {
    throw Failure{ExitCode::kUsage, actions.front() + " needs a channel",
                  "name the channel first, such as 1"};
  }
}

CLI::Validator Group() {
  return {[](const std::string &text) {
            const auto group = NumberIn<int32_t>(text);
            const bool isGood = group && *group >= kLowestGroup && *group <= kHighestGroup;
            return isGood ? std::string()
                          : Quoted(text) + " is no number from " + std::to_string(kLowestGroup) +
                                " to " + std::to_string(kHighestGroup);
          },
          ""};
}

void AddOptions(CLI::App &app, const client::SettingKind &kind, Request &request) {
  if (kind.hasChannels) {
    app.add_option("CHANNEL CHOICE", request.words,
                   "The channel, from 1; then a text from its list, the\n"
                   "beginning of one, or its number");
  } else {
    app.add_option("CHOICE", request.words,
                   "A text from the list, the beginning of one, or its number");
  }
  app.add_flag("--dry-run", request.isDryRun, "Only tell what would be sent");
  app.add_flag("--again", request.isAgain, "Send the stored choice to the mixers once more");
  if (kind.extras.setDefault != nullptr) {
    app.add_flag("--default", request.isDefault, "Set the default for now; nothing is stored");
  }
  if (kind.extras.setRaw != nullptr) {
    app.add_option("--raw", request.rawSource, "Send this raw source code; nothing is stored")
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeLast)
        ->type_name("SOURCE");
    app.add_option("--group", request.rawGroup, "The group that goes with --raw (default: -1)")
        ->check(Group())
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeLast)
        ->type_name("N");
  }
  if (kind.extras.warning != nullptr) {
    app.add_option("--language", request.language, "The language of warnings, by name or number")
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeLast)
        ->type_name("NAME");
  }
}

/// The examples in the help, made from a setting that has choices.
std::string Examples(const client::SettingKind &kind) {
  const std::vector<const client::Model *> models = client::ModelsWith(kind);
  const std::string name(kind.name);
  if (models.empty()) return "  trxctl " + name + "   tells which models offer one\n";
  const bool isDefaultModel =
      std::find(models.begin(), models.end(), &client::DefaultModel()) != models.end();
  const client::Model &model = isDefaultModel ? client::DefaultModel() : *models.front();
  const client::Setting setting = client::SettingsOf(kind, model).back();

  std::vector<std::pair<std::string, std::string>> lines;
  if (kind.hasChannels) {
    lines.emplace_back("trxctl " + name, "what is stored for each channel");
  }
  const auto add = [&](const std::string &words, const std::string &about) {
    lines.emplace_back(CommandLineFor(setting, words), about);
  };
  add("", "what is stored, and the choices");
  add(Quoted(setting.TextOf(1).value_or("")), "set it by its text");
  add("2", "set it by its number");
  add("--again", "send the stored choice again");
  if (kind.extras.setDefault != nullptr) add("--default", "set the default for now");
  if (kind.extras.setRaw != nullptr) add("--raw 10", "send a raw value");
  std::size_t width = 0;
  for (const auto &[line, about] : lines) width = std::max(width, line.size());
  std::string text;
  for (auto &[line, about] : lines) {
    line.resize(width + 2, ' ');
    text.append("  ").append(line).append(about).push_back('\n');
  }
  return text;
}

/// The command as it was typed, to be typed again.
std::string Typed(const client::SettingKind &kind, const std::vector<std::string> &words) {
  std::string typed(kind.name);
  for (const std::string &word : words) {
    const bool isPlain = word.find_first_of(" \t\"'$\\") == std::string::npos && !word.empty();
    typed += ' ' + (isPlain && word.size() < 30 ? Printable(word) : Quoted(word));
  }
  return typed;
}

void RequireOffered(const client::SettingKind &kind, const client::Model &chosen,
                    const std::vector<std::string> &words) {
  if (!client::SettingsOf(kind, chosen).empty()) return;
  const std::string title(kind.title);
  const std::string message = std::string(chosen.name) + " has no " + title;
  const std::vector<std::string> others = NamesOf(client::ModelsWith(kind));
  if (others.empty()) {
    throw Failure{ExitCode::kRefused, message, "no model offers a " + title};
  }
  throw Failure{ExitCode::kRefused, message,
                "models that have one: " + Joined(others) + "; name one: trxctl " +
                    Typed(kind, words) + " --model " + others.front(),
                others};
}

ExitCode RunOn(const Session &session, const client::Setting &setting, const Request &request) {
  const int32_t language =
      request.language ? LanguageNamed(*request.language) : client::kSystemLanguage;
  const SendOptions options{language, request.isDryRun};
  if (request.isAgain) return SendAgain(session, setting, options);
  if (request.isDefault) return SendDefault(session, setting, options);
  if (request.rawSource) {
    return SendRaw(session, setting, *request.rawSource, request.rawGroup, options);
  }
  if (!request.words.empty()) return SetChoice(session, setting, request.Choice(), options);
  ListChoices(session, setting);
  return ExitCode::kDone;
}

ExitCode Run(const Session &session, const client::SettingKind &kind, Request request) {
  const client::Model &model = session.model;
  RequireOffered(kind, model, request.words);
  const std::vector<client::Setting> settings = client::SettingsOf(kind, model);
  if (!kind.hasChannels) {
    request.RequireOneAction(true);
    return RunOn(session, settings.front(), request);
  }
  const auto channel = request.TakeChannel();
  request.RequireOneAction(channel.has_value());
  if (!channel) {
    ListChannels(session, settings);
    return ExitCode::kDone;
  }
  // Raw values reach channels, too, that have no list.
  const std::size_t count = request.rawSource
                                ? static_cast<std::size_t>(client::CountRawInputChannels(model.id))
                                : settings.size();
  return RunOn(session, {&kind, &model, ChannelNamed(*channel, kind, model, count)}, request);
}

}  // namespace

Command MakeSettingCommand(CLI::App &program, const client::SettingKind &kind) {
  CLI::App *app =
      program.add_subcommand(std::string(kind.name), "Show or set " + std::string(kind.about));
  app->footer("Examples:\n" + Examples(kind) + kSharedOptionsHelp);
  const auto request = std::make_shared<Request>();
  AddOptions(*app, kind, *request);
  return {app, [&kind, request](const Session &session) { return Run(session, kind, *request); },
          client::ModelsWith(kind).empty()};
}

}  // namespace trxctl
