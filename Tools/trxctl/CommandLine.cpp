#include "CommandLine.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <exception>
#include <optional>
#include <string>
#include <vector>

#include "AutoApplyCommand.h"
#include "Command.h"
#include "Completion.h"
#include "Diagnose.h"
#include "Help.h"
#include "InfoCommands.h"
#include "Listing.h"
#include "Profile.h"
#include "Reapply.h"
#include "Reset.h"
#include "SettingCommand.h"
#include "Status.h"
#include "UserInput.h"
#include "Watch.h"
#include "Words.h"

namespace trxctl {
namespace {

constexpr char kOverview[] =
    "Shows and changes the settings of USB DJ mixers of the TRX-SELVA family.\n"
    "Without a command: shows the connected mixers and the settings.";

constexpr char kExamples[] =
    "Examples:\n"
    "  trxctl                           the connected mixers and the settings\n"
    "  trxctl boost                     the boost level and the choices\n"
    "  trxctl boost \"-10 dB\"            set it on every connected mixer\n"
    "  trxctl input 2 \"REC OUT\"         what the computer records on channel 2\n"
    "  trxctl diagnose                  why a mixer is not found or cannot be opened\n"
    "  trxctl boost --model TRX-VOLT    the boost level stored for another model\n"
    "  trxctl watch                     print each change as it happens\n"
    "\n"
    "trxctl COMMAND --help tells more about a command.\n";

std::string ExitCodeHelp() {
  std::string help = "Exit codes:\n";
  for (const ExitCodeEntry &entry : ExitCodes()) {
    help += "  " + std::to_string(static_cast<int>(entry.code)) + "  " +
            std::string(entry.meaning) + '\n';
  }
  help.pop_back();
  return help;
}

/// The command line as the parser knows it.
class Program {
 public:
  Program() : app_(kOverview, "trxctl") {
    app_.formatter(HelpFormat::Make());
    app_.add_option("--model", model_, "The mixer model (default: that of the mixers)")
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeLast)
        ->type_name("NAME");
    app_.add_flag("--json")->description("Answer in JSON, errors included");
    app_.set_version_flag("--version", "trxctl " TRXCTL_VERSION, "Print the version and exit");
    app_.set_help_flag("-h,--help", "Print this help and exit");
    app_.footer(std::string(kExamples) + '\n' + ExitCodeHelp());
    app_.require_subcommand(0, 1);
    app_.fallthrough();
    for (const client::SettingKind &kind : client::SettingKinds()) {
      commands_.push_back(MakeSettingCommand(app_, kind));
    }
    for (const auto make : {MakeStatus, MakeWatch, MakeReapply, MakeAutoApply, MakeReset,
                            MakeProfile, MakeDiagnose, MakeVersions, MakeModels}) {
      commands_.push_back(make(app_));
    }
    for (const Command &command : commands_) command.app->group(command.isHidden ? "" : "Commands");
  }

  ExitCode Run(int argc, char **argv, const Output &output) {
    // Before the parser, which would take options among the words for its own.
    if (argc > 1 && std::string_view(argv[1]) == kCompleteWord) {
      Complete(app_, {argv + 2, argv + argc}, output);
      return ExitCode::kDone;
    }
    words_ = {argv + std::min(argc, 1), argv + argc};
    if (!words_.empty() && words_.front() == "help") words_ = HelpWords();
    RefuseValuesOfFlags();
    try {
      // The parser takes the words off the end.
      app_.parse(std::vector<std::string>(words_.rbegin(), words_.rend()));
    } catch (const CLI::CallForHelp &) {
      output.Print(app_.help(), {{"help", app_.help()}});
      return ExitCode::kDone;
    } catch (const CLI::CallForVersion &) {
      output.Print("trxctl " TRXCTL_VERSION "\n",
                   {{"name", "trxctl"}, {"version", TRXCTL_VERSION}});
      return ExitCode::kDone;
    } catch (const CLI::ExtrasError &) {
      ThrowNotExpected(app_.remaining(true).front());
    } catch (const CLI::ArgumentMismatch &error) {
      // The options take one value, the last one given; so what does not match is that there is
      // none.
      const std::string message = error.what();
      throw Failure{ExitCode::kUsage, message.substr(0, message.find(':')) + " needs a value",
                    UsageHint()};
    } catch (const CLI::ParseError &error) {
      throw Failure{ExitCode::kUsage, error.what(), UsageHint()};
    }
    return RunChosen(output);
  }

 private:
  ExitCode RunChosen(const Output &output) const {
    const std::optional<std::string> model = model_ ? model_ : ModelOfEnvironment();
    // The variable is a preference: it must not keep a profile of another model from being loaded.
    const Session session{model ? ModelNamed(*model) : UnnamedModel(), model_.has_value(), output};
    const auto chosen = std::find_if(commands_.begin(), commands_.end(),
                                     [](const Command &command) { return command.app->parsed(); });
    if (chosen != commands_.end()) return chosen->run(session);
    return Show(session);
  }

  /// What stands for "help" and, where a command follows, for its help.
  std::vector<std::string> HelpWords() const {
    std::vector<std::string> words(words_.begin() + 1, words_.end());
    words.emplace_back("--help");
    return words;
  }

  /// The parser takes --json=no and even --json= for a value of the flag.
  void RefuseValuesOfFlags() const {
    for (const std::string &word : words_) {
      if (word == "--") return;
      const std::size_t equals = word.find('=');
      if (!word.starts_with("--") || equals == std::string::npos) continue;
      const std::string name = word.substr(0, equals);
      if (IsFlag(name)) {
        throw Failure{ExitCode::kUsage, name + " takes no value", "write " + name + " alone"};
      }
    }
  }

  bool IsFlag(const std::string &name) const {
    const auto isFlagOf = [&name](const CLI::App *app) {
      const CLI::Option *option = app->get_option_no_throw(name);
      return option != nullptr && option->get_items_expected_max() == 0;
    };
    return isFlagOf(&app_) ||
           std::any_of(commands_.begin(), commands_.end(),
                       [&](const Command &command) { return isFlagOf(command.app); });
  }

  static std::optional<std::string> ModelOfEnvironment() {
    const char *model = std::getenv("TRXCTL_MODEL");
    if (model == nullptr || *model == '\0') return std::nullopt;
    return model;
  }

  /// Whether a word that is no command stands before one, as in "set boost 1".
  bool IsBeforeCommand(const std::string &given) const {
    const std::vector<std::string> names = CommandNames();
    return words_.size() > 1 && words_.front() == given &&
           std::find(names.begin(), names.end(), words_[1]) != names.end();
  }

  [[noreturn]] void ThrowNotExpected(const std::string &given) const {
    const auto chosen = app_.get_subcommands();
    if (!given.starts_with('-') && IsBeforeCommand(given)) {
      const std::vector<std::string> rest(words_.begin() + 1, words_.end());
      throw Failure{ExitCode::kUsage, "unknown command " + Quoted(given),
                    "did you mean trxctl " + Printable(Joined(rest, " ")) + "?"};
    }
    if (given.starts_with('-')) {
      ThrowUnknown("unknown option " + Quoted(given), Nearest(given, OptionNames()));
    } else if (chosen.empty()) {
      ThrowUnknown("unknown command " + Quoted(given), Nearest(given, CommandNames()));
    }
    ThrowUnknown(Quoted(given) + " is not expected after " + Quoted(chosen.front()->get_name()),
                 std::nullopt);
  }

  [[noreturn]] void ThrowUnknown(const std::string &message,
                                 const std::optional<std::string> &nearest) const {
    if (!nearest) throw Failure{ExitCode::kUsage, message, UsageHint()};
    throw Failure{ExitCode::kUsage, message, "did you mean " + *nearest + "?", {*nearest}};
  }

  std::vector<std::string> CommandNames() const {
    std::vector<std::string> names;
    for (const Command &command : commands_) {
      if (!command.isHidden) names.push_back(command.app->get_name());
    }
    return names;
  }

  /// The options that the command line may hold, given the command in it.
  std::vector<std::string> OptionNames() const {
    std::vector<const CLI::App *> apps{&app_};
    for (const Command &command : commands_) {
      if (!command.app->parsed()) continue;
      apps.push_back(command.app);
      for (const CLI::App *below : command.app->get_subcommands()) apps.push_back(below);
    }
    std::vector<std::string> names;
    for (const CLI::App *app : apps) {
      for (const CLI::Option *option : app->get_options()) {
        for (const std::string &name : option->get_lnames()) names.push_back("--" + name);
      }
    }
    return names;
  }

  std::string UsageHint() const {
    const auto chosen = app_.get_subcommands();
    return "see trxctl " + (chosen.empty() ? "" : chosen.front()->get_name() + ' ') + "--help";
  }

  CLI::App app_;
  std::optional<std::string> model_;
  std::vector<Command> commands_;
  /// The command line behind the name of the program.
  std::vector<std::string> words_;
};

/// Whether errors are wanted in JSON, also when the command line cannot be understood.
bool AsksForJson(int argc, char **argv) {
  if (argc > 1 && std::string_view(argv[1]) == kCompleteWord) return false;
  return std::any_of(argv, argv + argc,
                     [](const char *word) { return std::string(word) == "--json"; });
}

}  // namespace

int RunCommandLine(int argc, char **argv) noexcept {
  ReserveStandardStreams();
  // Writing to a pipe without a reader is then an error that can be reported.
  std::signal(SIGPIPE, SIG_IGN);
  const Output output(AsksForJson(argc, argv));
  try {
    return static_cast<int>(Program().Run(argc, argv, output));
  } catch (const Failure &failure) {
    output.Print(failure);
    return static_cast<int>(failure.code);
  } catch (const std::exception &error) {
    output.Print(
        Failure{ExitCode::kFailed, error.what(), "this should not happen; please report it"});
    return static_cast<int>(ExitCode::kFailed);
  }
}

}  // namespace trxctl
