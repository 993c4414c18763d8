#include "Profile.h"

#include <algorithm>
#include <array>
#include <memory>
#include <optional>
#include <utility>

#include "ProfileFaults.h"
#include "Progress.h"
#include "Sending.h"
#include "UserInput.h"
#include "Words.h"
#include "client/Languages.h"
#include "client/Profiles.h"

namespace trxctl {
namespace {

/// What the command line asked for.
struct Request {
  std::string first;
  std::string second;
  bool replaces = false;
  bool isDryRun = false;
  std::optional<std::string> name;
  std::optional<std::string> language;

  client::OldFile OldFile() const {
    return replaces ? client::OldFile::kIsReplaced : client::OldFile::kIsKept;
  }
};

/// An argument, as the help has it.
struct Argument {
  const char *name;
  const char *about;
};

constexpr Argument kProfile{kProfileArgument, "The profile, by its whole name"};
constexpr Argument kNewName{"NAME", "A name for it, of any characters, up to 80 bytes"};
constexpr Argument kFile{"FILE", "The file"};

/// What can be done with profiles, each a command of its own below "profile".
struct Action {
  const char *name;
  const char *about;
  /// Its arguments; null for none.
  const Argument *first;
  const Argument *second;
  /// Null where there are fewer.
  std::array<const char *, 2> options;
  /// What the help says of it besides; empty for nothing.
  const char *details;
  /// Throws Failure and ProfileFault.
  ExitCode (*run)(const Session &, const Request &);
};

std::string CalledProfile(const std::string &name) { return "the profile " + Quoted(name); }

/// Texts that belong to settings, each printed once with all settings that it belongs to.
class TextsOfSettings {
 public:
  void Add(const std::string &text, const std::string &setting) {
    const auto same = std::find_if(all_.begin(), all_.end(),
                                   [&text](const auto &one) { return one.first == text; });
    if (same == all_.end()) {
      all_.push_back({text, {setting}});
    } else {
      same->second.push_back(setting);
    }
  }

  const std::vector<std::pair<std::string, std::vector<std::string>>> &All() const { return all_; }

 private:
  std::vector<std::pair<std::string, std::vector<std::string>>> all_;
};

std::string Row(const client::ProfileChoice &choice) {
  return TitleOf(choice.setting) + ": " + choice.setting.TextOf(choice.index).value_or("");
}

Json ChoiceOf(const client::ProfileChoice &choice) {
  Json json = NameAsJson(choice.setting);
  json.update(ChoiceAsJson(choice.setting, choice.index));
  return json;
}

Json HeadingOf(const client::Profile &profile) {
  return {{"profile", profile.name}, {"model", profile.model->name}};
}

Json Done(const client::Profile &profile, std::string_view action) {
  Json json = HeadingOf(profile);
  json["action"] = action;
  return json;
}

Json ChoicesOf(const client::Profile &profile) {
  Json json = Json::array();
  for (const client::ProfileChoice &choice : profile.choices) json.push_back(ChoiceOf(choice));
  return json;
}

/// Refuses a profile of another model than the one that the user named.
void RequireModel(const Session &session, const client::Profile &profile) {
  if (!session.isModelGiven || profile.model == &session.model) return;
  throw Failure{ExitCode::kRefused,
                CalledProfile(profile.name) + " is for " + std::string(profile.model->name) +
                    ", not for " + std::string(session.model.name),
                "leave out --model: a profile is loaded for its own model"};
}

client::Profile Loaded(const Session &session, const Request &request) {
  client::Profile profile = client::LoadProfile(request.first);
  RequireModel(session, profile);
  return profile;
}

// --- Looking -------------------------------------------------------------------------------------

constexpr std::size_t kModelColumn = 12;

std::string ListedAsText(const client::StoredProfile &stored) {
  if (!stored.profile) {
    return "  cannot be loaded: " + SentenceFor(*stored.fault, CalledProfile(stored.name)) + '\n';
  }
  std::string model(stored.profile->model->name);
  model.resize(std::max(kModelColumn, model.size() + 1), ' ');
  const bool isStored = client::DifferingFromStored(*stored.profile).empty();
  return (isStored ? "* " : "  ") + model + stored.name + '\n';
}

Json ListedAsJson(const client::StoredProfile &stored) {
  Json json{{"profile", Printable(stored.name)}, {"model", nullptr}, {"equals_stored", false}};
  if (stored.profile) {
    json["model"] = stored.profile->model->name;
    json["equals_stored"] = client::DifferingFromStored(*stored.profile).empty();
  } else {
    json["error"] = SentenceFor(*stored.fault, CalledProfile(stored.name));
  }
  return json;
}

ExitCode List(const Session &session, const Request & /*request*/) {
  std::string text;
  Json profiles = Json::array();
  for (const client::StoredProfile &stored : client::StoredProfiles()) {
    const bool isOfOther = stored.profile && stored.profile->model != &session.model;
    if (session.isModelGiven && isOfOther) continue;
    text += ListedAsText(stored);
    profiles.push_back(ListedAsJson(stored));
  }
  const std::string heading = session.output.Strong("Profiles") + '\n';
  session.output.Print(text.empty() ? "There is no profile.\n" : heading + text,
                       {{"profiles", profiles}});
  if (text.empty()) session.output.Note("hint: save what is stored: trxctl profile save NAME");
  return ExitCode::kDone;
}

ExitCode Show(const Session &session, const Request &request) {
  const client::Profile profile = Loaded(session, request);
  const bool isStored = client::DifferingFromStored(profile).empty();
  std::string text =
      session.output.Strong(std::string(profile.model->name) + " profile " + Quoted(profile.name)) +
      (isStored ? ", equal to what is stored\n" : "\n");
  for (const client::ProfileChoice &choice : profile.choices) text += "  " + Row(choice) + '\n';
  Json json = HeadingOf(profile);
  json["equals_stored"] = isStored;
  json["settings"] = ChoicesOf(profile);
  session.output.Print(text, json);
  return ExitCode::kDone;
}

// --- Loading -------------------------------------------------------------------------------------

/// What is stored and what the profile has in its place.
ExitCode ShowDifference(const Session &session, const client::Profile &profile) {
  Json json = Done(profile, "dry-run");
  json["changes"] = Json::array();
  std::string rows;
  for (const client::ProfileChoice &choice : client::DifferingFromStored(profile)) {
    rows += "  " + TitleOf(choice.setting) + ": " +
            ChoiceAsText(choice.setting, choice.setting.Current()) + " -> " +
            choice.setting.TextOf(choice.index).value_or("") + '\n';
    Json change = ChoiceOf(choice);
    change["stored"] = ChoiceAsJson(choice.setting, choice.setting.Current());
    json["changes"].push_back(std::move(change));
  }
  const std::string heading =
      std::string(profile.model->name) + " profile " + Quoted(profile.name) +
      (rows.empty() ? " equals what is stored." : " would change what is stored:") + '\n';
  session.output.Print(heading + rows + "Nothing was sent or stored.\n", json);
  return ExitCode::kDone;
}

/// What came of loading a profile, for both kinds of answer.
class LoadReport {
 public:
  LoadReport(const client::Profile &profile, int32_t language)
      : profile_(profile), language_(language), json_(Done(profile, "load")) {
    json_["settings"] = Json::array();
  }

  void Add(const client::ProfileSendResult &sent) {
    const client::ProfileChoice &choice = sent.choice;
    const client::Delivery &delivery = sent.result.delivery;
    Json entry = ChoiceOf(choice);
    entry["stored"] = sent.result.isStored;
    entry.update(ResultAsJson(sent.result));
    if (client::IsWarningFor(choice.setting, sent.result, choice.index)) {
      const std::string warning = WarningOf(choice.setting);
      warnings_.Add(warning, TitleOf(choice.setting));
      entry["warning"] = warning;
    }
    deliveries_.Add(delivery.isConnected ? DeliveryAsText(delivery) : kNoMixer, Row(choice));
    if (!sent.result.isStored) notStored_.push_back(choice.setting);
    delivery_.Add(delivery);
    json_["settings"].push_back(std::move(entry));
  }

  ExitCode Print(const Output &output) const {
    std::string text = output.Strong(std::string(profile_.model->name) + " profile " +
                                     Quoted(profile_.name) + " loaded") +
                       '\n';
    for (const auto &[delivery, rows] : deliveries_.All()) {
      text += "  " + Joined(rows, "\n  ") + '\n' + delivery;
    }
    Answer answer{.text = text, .json = json_};
    answer.notes = OtherModelWarnings(*profile_.model, delivery_);
    for (const auto &[warning, titles] : warnings_.All()) {
      answer.notes.push_back("warning: " + Joined(titles) + ": " + warning);
    }
    answer.failure = DeliveryFailure(delivery_, "; the settings are stored");
    if (!notStored_.empty()) {
      std::vector<std::string> titles;
      for (const client::Setting &setting : notStored_) titles.push_back(TitleOf(setting));
      answer.notes.push_back("could not be stored: " + Joined(titles));
      answer.failure = NotStored(notStored_.front());
    }
    return output.Print(answer);
  }

 private:
  static constexpr char kNoMixer[] = "No mixer is connected; the settings are stored anyway.\n";

  std::string WarningOf(const client::Setting &setting) const {
    return client::WarningText(setting, language_)
        .value_or("the input selector of the mixer may keep it from taking effect");
  }

  const client::Profile &profile_;
  int32_t language_;
  Json json_;
  TextsOfSettings deliveries_;
  TextsOfSettings warnings_;
  std::vector<client::Setting> notStored_;
  client::Delivery delivery_;
};

ExitCode Load(const Session &session, const Request &request) {
  const client::Profile profile = Loaded(session, request);
  LoadReport report(profile,
                    request.language ? LanguageNamed(*request.language) : client::kSystemLanguage);
  if (request.isDryRun) return ShowDifference(session, profile);
  const Progress progress(session.output);
  for (const client::ProfileSendResult &sent : client::SetProfile(profile)) report.Add(sent);
  return report.Print(session.output);
}

// --- Keeping -------------------------------------------------------------------------------------

ExitCode Save(const Session &session, const Request &request) {
  const client::Profile profile = client::ProfileOfStored(session.model, request.first);
  client::SaveProfile(profile, request.OldFile());
  Json json = Done(profile, "save");
  json["settings"] = ChoicesOf(profile);
  session.output.Print("Saved " + Counted(profile.choices.size(), "setting") + " of " +
                           std::string(profile.model->name) + " as " + CalledProfile(profile.name) +
                           ".\n",
                       json);
  return ExitCode::kDone;
}

ExitCode Delete(const Session &session, const Request &request) {
  client::DeleteProfile(request.first);
  session.output.Print("Deleted " + CalledProfile(request.first) + ".\n",
                       {{"profile", request.first}, {"action", "delete"}});
  return ExitCode::kDone;
}

ExitCode Rename(const Session &session, const Request &request) {
  client::RenameProfile(request.first, request.second, request.OldFile());
  session.output.Print(
      "Renamed " + CalledProfile(request.first) + " to " + Quoted(request.second) + ".\n",
      {{"profile", request.second}, {"action", "rename"}, {"renamed_from", request.first}});
  return ExitCode::kDone;
}

ExitCode Export(const Session &session, const Request &request) {
  const client::Profile profile =
      client::ExportProfile(request.first, request.second, request.OldFile());
  Json json = Done(profile, "export");
  json["file"] = request.second;
  session.output.Print(
      "Exported " + CalledProfile(profile.name) + " to " + Quoted(request.second) + ".\n", json);
  return ExitCode::kDone;
}

ExitCode Import(const Session &session, const Request &request) {
  const client::Profile profile =
      client::ImportProfile(request.first, request.name, request.OldFile());
  Json json = Done(profile, "import");
  json["settings"] = ChoicesOf(profile);
  session.output.Print("Imported " + CalledProfile(profile.name) + " for " +
                           std::string(profile.model->name) + ".\n",
                       json);
  return ExitCode::kDone;
}

// --- The command line ----------------------------------------------------------------------------

constexpr char kReplace[] = "--replace";
constexpr char kDryRun[] = "--dry-run";
constexpr char kName[] = "--name";
constexpr char kLanguage[] = "--language";

constexpr std::array kActions{
    Action{"list",
           "List the profiles; * marks what equals the stored settings",
           nullptr,
           nullptr,
           {},
           "",
           List},
    Action{"save",
           "Save the stored settings under a name",
           &kNewName,
           nullptr,
           {kReplace},
           "Every setting that the model takes from a list is saved, also one at its\n"
           "default.\n",
           Save},
    Action{"show", "Show the settings in a profile", &kProfile, nullptr, {}, "", Show},
    Action{"load",
           "Set everything that is in a profile",
           &kProfile,
           nullptr,
           {kDryRun, kLanguage},
           "The whole profile is checked first. Then its settings are sent to every\n"
           "connected mixer, stored and announced one after the other.\n",
           Load},
    Action{"delete", "Delete a profile", &kProfile, nullptr, {}, "", Delete},
    Action{"rename", "Give a profile another name", &kProfile, &kNewName, {kReplace}, "", Rename},
    Action{"export",
           "Write a profile to a file for another computer",
           &kProfile,
           &kFile,
           {kReplace},
           "",
           Export},
    Action{"import",
           "Take a profile from a file",
           &kFile,
           nullptr,
           {kReplace, kName},
           "Nothing is sent or changed on a mixer: load the profile for that.\n",
           Import},
};

void AddOption(CLI::App &app, const std::string &name, Request &request) {
  const auto takesText = [&app, &name](std::optional<std::string> &text, const char *about) {
    app.add_option(name, text, about)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeLast)
        ->type_name("NAME");
  };
  const auto isFlag = [&app, &name](bool &flag, const char *about) {
    app.add_flag(name, flag, about)->disable_flag_override();
  };
  if (name == kReplace) isFlag(request.replaces, "Replace what has that name already");
  if (name == kDryRun)
    isFlag(request.isDryRun, "Only show what would change; nothing is sent or stored");
  if (name == kName) takesText(request.name, "The name to import it under");
  if (name == kLanguage) takesText(request.language, "The language of warnings, by name or number");
}

void AddAction(CLI::App &app, const Action &action, Request &request) {
  CLI::App *added = app.add_subcommand(action.name, action.about);
  const auto takes = [added](const Argument *argument, std::string &value) {
    if (argument != nullptr) added->add_option(argument->name, value, argument->about)->required();
  };
  takes(action.first, request.first);
  takes(action.second, request.second);
  for (const char *option : action.options) {
    if (option != nullptr) AddOption(*added, option, request);
  }
  added->group("Commands");
  // What is shared begins with an empty line, to set it off.
  const bool isExplained = *action.details != '\0';
  added->footer(action.details + std::string(kSharedOptionsHelp + (isExplained ? 0 : 1)));
}

/// What the profile is called in an error: an import is about a file.
std::string CalledIn(const Action &action, const Request &request) {
  return action.first == &kFile ? Quoted(request.first) : CalledProfile(request.first);
}

ExitCode Run(const Session &session, const Action &action, const Request &request) {
  try {
    return action.run(session, request);
  } catch (const client::ProfileFault &fault) {
    throw FailureFor(fault, CalledIn(action, request));
  }
}

}  // namespace

Command MakeProfile(CLI::App &program) {
  CLI::App *app = program.add_subcommand("profile", "Save and load settings under a name");
  app->require_subcommand(0, 1);
  app->footer(std::string("Without a command: lists the profiles. A profile holds every setting\n"
                          "that its model takes from a list.\n"
                          "\n"
                          "Examples:\n"
                          "  trxctl profile save \"Friday club\"\n"
                          "  trxctl profile load \"Friday club\" --dry-run\n"
                          "  trxctl profile export \"Friday club\" friday.json\n"
                          "  trxctl profile import friday.json\n") +
              kSharedOptionsHelp);
  const auto request = std::make_shared<Request>();
  for (const Action &action : kActions) AddAction(*app, action, *request);
  return {app, [app, request](const Session &session) {
            const auto chosen = app->get_subcommands();
            const std::string name = chosen.empty() ? "list" : chosen.front()->get_name();
            const auto *const action =
                std::find_if(kActions.begin(), kActions.end(),
                             [&](const Action &one) { return one.name == name; });
            return Run(session, *action, *request);
          }};
}

}  // namespace trxctl
