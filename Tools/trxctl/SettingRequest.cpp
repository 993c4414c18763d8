#include "SettingRequest.h"

#include "Failure.h"
#include "Text.h"

namespace trxctl {
namespace {

// The library shifts the group, plus 1, into four bits.
constexpr int kLowestGroup = -1;
constexpr int kHighestGroup = 14;

CLI::Validator Group() {
  return {[](const std::string &text) {
            int group = 0;
            const bool good = CLI::detail::lexical_cast(text, group) && group >= kLowestGroup &&
                              group <= kHighestGroup;
            return good ? std::string()
                        : Quoted(text) + " is no number from " + std::to_string(kLowestGroup) +
                              " to " + std::to_string(kHighestGroup);
          },
          ""};
}

}  // namespace

std::optional<std::string> SettingRequest::TakeChannel() {
  if (words.empty()) return std::nullopt;
  std::string channel = words.front();
  words.erase(words.begin());
  return channel;
}

std::string SettingRequest::Choice() const { return Joined(words, " "); }

void SettingRequest::RequireOneAction(bool channel_given) const {
  std::vector<std::string> actions;
  if (again) actions.emplace_back("--again");
  if (to_default) actions.emplace_back("--default");
  if (raw_source) actions.emplace_back("--raw");
  if (!words.empty()) actions.push_back(Quoted(Choice()));
  if (actions.size() > 1) {
    throw Failure{ExitCode::kUsage, Joined(actions, " and ") + " do not go together",
                  "leave out all but one of them"};
  }
  if (raw_group != kLowestGroup && !raw_source) {
    throw Failure{ExitCode::kUsage, "--group goes with --raw only", "add --raw SOURCE"};
  }
  if (!channel_given && !actions.empty()) {
    throw Failure{ExitCode::kUsage, actions.front() + " needs a channel",
                  "name the channel first, such as 1"};
  }
}

void AddSettingOptions(CLI::App &app, const Setting &setting, SettingRequest &request) {
  const SettingExtras &extras = setting.extras;
  if (setting.has_channels) {
    app.add_option("CHANNEL CHOICE", request.words,
                   "The channel, from 1; then a text from its list, the\n"
                   "beginning of one, or its number");
  } else {
    app.add_option("CHOICE", request.words,
                   "A text from the list, the beginning of one, or its number");
  }
  app.add_flag("--again", request.again, "Send the stored choice to the mixers once more");
  if (extras.set_default != nullptr) {
    app.add_flag("--default", request.to_default,
                 "Set the default for the time being; nothing is stored");
  }
  if (extras.set_raw != nullptr) {
    app.add_option("--raw", request.raw_source, "Send this raw source code; nothing is stored")
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeLast)
        ->type_name("SOURCE");
    app.add_option("--group", request.raw_group, "The group that goes with --raw (default: -1)")
        ->check(Group())
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeLast)
        ->type_name("N");
  }
  if (extras.warning != nullptr) {
    app.add_option("--language", request.language, "The language of warnings, by name or number")
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeLast)
        ->type_name("NAME");
  }
}

}  // namespace trxctl
