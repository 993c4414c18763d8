#include "Completion.h"

#include <algorithm>
#include <cstdlib>
#include <optional>

#include "AutoApplyWords.h"
#include "Profile.h"
#include "UserInput.h"
#include "Words.h"
#include "client/InputLists.h"
#include "client/Languages.h"
#include "client/Profiles.h"
#include "client/Settings.h"

namespace trxctl {
namespace {

/// Something that a word could become.
struct Candidate {
  std::string text;
  std::string about;
};

/// A word without the quotes and escapes that the shell left in it.
std::string Unquoted(std::string word) {
  std::erase_if(word, [](char c) { return c == '"' || c == '\'' || c == '\\'; });
  return word;
}

std::string FirstLine(const std::string &text) { return text.substr(0, text.find('\n')); }

/// What the words before the cursor say.
class Situation {
 public:
  Situation(const CLI::App &program, const std::vector<std::string> &before) : program_(program) {
    for (const std::string &word : before) Read(word);
  }

  std::vector<Candidate> Candidates(bool ofOptions) const {
    if (option_ != nullptr) return ValuesOf(*option_);
    std::vector<Candidate> candidates = PlainWords();
    if (ofOptions) AddOptions(candidates);
    return candidates;
  }

 private:
  void Read(const std::string &word) {
    if (option_ != nullptr) {
      TakeValue(*option_, word);
      option_ = nullptr;
    } else if (const CLI::Option *option = OptionOf(word)) {
      Take(*option, word);
    } else if (!CommandsHere().empty()) {
      if (const CLI::App *command = CommandNamed(word)) command_ = command;
    } else {
      words_.push_back(word);
    }
  }

  /// The commands of which one comes next: those of the program, or those below its command.
  std::vector<const CLI::App *> CommandsHere() const {
    return (command_ == nullptr ? program_ : *command_).get_subcommands(nullptr);
  }

  const CLI::App *CommandNamed(const std::string &word) const {
    for (const CLI::App *command : CommandsHere()) {
      if (command->get_name() == word) return command;
    }
    return nullptr;
  }

  const CLI::Option *OptionOf(const std::string &word) const {
    if (!word.starts_with("--")) return nullptr;
    const std::string name = word.substr(0, word.find('='));
    const CLI::Option *option = program_.get_option_no_throw(name);
    if (option == nullptr && command_ != nullptr) option = command_->get_option_no_throw(name);
    return option;
  }

  void Take(const CLI::Option &option, const std::string &word) {
    if (option.get_items_expected_max() == 0) return;
    const std::size_t equals = word.find('=');
    if (equals == std::string::npos) {
      option_ = &option;
    } else {
      TakeValue(option, word.substr(equals + 1));
    }
  }

  void TakeValue(const CLI::Option &option, const std::string &value) {
    if (option.check_lname("model")) model_ = value;
    isRaw_ = isRaw_ || option.check_lname("raw");
  }

  std::vector<Candidate> ValuesOf(const CLI::Option &option) const {
    std::vector<Candidate> values;
    if (option.check_lname("model")) {
      for (const std::string &name : NamesOf(client::ServedModels())) {
        values.push_back({name, ""});
      }
    } else if (option.check_lname("language")) {
      for (const client::Language &language : client::Languages()) {
        values.push_back({std::string(language.name), ""});
      }
    }
    return values;
  }

  std::vector<Candidate> PlainWords() const {
    if (!CommandsHere().empty()) return Commands();
    if (NextArgument() == kProfileArgument) return Profiles();
    if (NextArgument() == kOnOrOffArgument) return {{"off", ""}, {"on", ""}};
    const client::SettingKind *kind = ChosenKind();
    const client::Model *model = ChosenModel();
    if (kind == nullptr || model == nullptr) return {};
    if (kind->hasChannels && words_.empty()) return Channels(*kind, *model);
    if (words_.size() != (kind->hasChannels ? 1 : 0) || isRaw_) return {};
    return Choices({kind, model, ChosenChannel(*kind)});
  }

  std::vector<Candidate> Commands() const {
    std::vector<Candidate> commands;
    for (const CLI::App *command : CommandsHere()) {
      if (command->get_group().empty()) continue;
      commands.push_back({command->get_name(), FirstLine(command->get_description())});
    }
    return commands;
  }

  /// The argument that comes next, as the help calls it; empty for none.
  std::string NextArgument() const {
    std::size_t place = 0;
    for (const CLI::Option *option : command_->get_options()) {
      if (!option->get_positional()) continue;
      if (place == words_.size()) return option->get_single_name();
      ++place;
    }
    return "";
  }

  /// Without the folder of the profiles there is nothing to complete, and it is no place to say so.
  static std::vector<Candidate> Profiles() {
    std::vector<Candidate> profiles;
    try {
      for (const std::string &name : client::ProfileNames()) profiles.push_back({name, ""});
    } catch (const client::ProfileFault &) {
      profiles.clear();
    }
    return profiles;
  }

  const client::SettingKind *ChosenKind() const {
    const auto kinds = client::SettingKinds();
    const auto found = std::find_if(kinds.begin(), kinds.end(), [this](const auto &kind) {
      return kind.name == command_->get_name();
    });
    return found == kinds.end() ? nullptr : &*found;
  }

  const client::Model *ChosenModel() const {
    const char *environment = std::getenv("TRXCTL_MODEL");
    const std::string name = model_ ? *model_ : environment == nullptr ? "" : environment;
    if (name.empty()) return &UnnamedModel();
    const std::vector<const client::Model *> matching = client::ModelsMatching(name);
    return matching.size() == 1 ? matching.front() : nullptr;
  }

  /// A word that is no number is a channel that no model has.
  int32_t ChosenChannel(const client::SettingKind &kind) const {
    if (!kind.hasChannels) return client::kNoChannel;
    return NumberIn<int32_t>(words_.front()).value_or(0) - 1;
  }

  std::vector<Candidate> Channels(const client::SettingKind &kind,
                                  const client::Model &model) const {
    std::vector<Candidate> channels;
    for (const client::Setting &setting : client::SettingsOf(kind, model)) {
      channels.push_back(
          {std::to_string(setting.channel + 1), setting.TextOf(setting.Current()).value_or("")});
    }
    // Raw values reach channels, too, that have no list.
    for (auto next = static_cast<int32_t>(channels.size());
         isRaw_ && next < client::CountRawInputChannels(model.id); ++next) {
      channels.push_back({std::to_string(next + 1), ""});
    }
    return channels;
  }

  static std::vector<Candidate> Choices(const client::Setting &setting) {
    std::vector<Candidate> choices;
    if (!setting.IsOffered() || !setting.TakesChoices()) return choices;
    for (const std::string &text : setting.Choices()) choices.push_back({text, ""});
    return choices;
  }

  void AddOptions(std::vector<Candidate> &candidates) const {
    std::vector<const CLI::App *> apps{&program_};
    if (command_ != nullptr) apps.insert(apps.begin(), command_);
    for (const CLI::App *app : apps) {
      for (const CLI::Option *option : app->get_options()) {
        for (const std::string &name : option->get_lnames()) {
          const std::string text = "--" + name;
          const bool known =
              std::any_of(candidates.begin(), candidates.end(),
                          [&text](const Candidate &one) { return one.text == text; });
          if (!known) candidates.push_back({text, FirstLine(option->get_description())});
        }
      }
    }
  }

  const CLI::App &program_;
  const CLI::App *command_ = nullptr;
  /// The option whose value comes next.
  const CLI::Option *option_ = nullptr;
  std::optional<std::string> model_;
  bool isRaw_ = false;
  /// The words behind the command that are no options.
  std::vector<std::string> words_;
};

}  // namespace

void Complete(const CLI::App &program, std::vector<std::string> words, const Output &output) {
  if (words.empty()) words.emplace_back();
  std::transform(words.begin(), words.end(), words.begin(), Unquoted);
  const std::string begun = Lower(words.back());
  words.pop_back();

  std::string text;
  Json json = Json::array();
  for (const Candidate &one : Situation(program, words).Candidates(begun.starts_with('-'))) {
    // The name of a profile may hold some of its own.
    if (!Lower(Unquoted(one.text)).starts_with(begun)) continue;
    text += one.text + (one.about.empty() ? "" : '\t' + one.about) + '\n';
    json.push_back(one.text);
  }
  output.Print(text, {{"candidates", json}});
}

}  // namespace trxctl
