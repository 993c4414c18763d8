#include "ProfileFaults.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>
#include <utility>
#include <vector>

#include "UserInput.h"
#include "Words.h"
#include "client/Profiles.h"

namespace trxctl {
namespace {

using client::ProfileFault;
using client::ProfileProblem;

/// The text of a problem; the fault fills in what is in braces.
struct Wording {
  ProfileProblem problem;
  ExitCode code;
  std::string_view message;
  std::string_view hint;
};

constexpr std::string_view kChooseName =
    "a name is 1 to 80 bytes long, in UTF-8, without line breaks and control characters";
constexpr std::string_view kGetAnew =
    "it was changed or damaged; export it once more where it comes from, or save it anew";
constexpr std::string_view kSeeModel = "see what the model takes: trxctl models --model {model}";

constexpr std::array kWordings{
    Wording{ProfileProblem::kNameEmpty, ExitCode::kRefused, "a profile needs a name", kChooseName},
    Wording{ProfileProblem::kNameTooLong, ExitCode::kRefused,
            "{what} is too long for the name of a profile", kChooseName},
    Wording{ProfileProblem::kNameNotPrintable, ExitCode::kRefused,
            "{what} has characters in it that the name of a profile cannot have", kChooseName},

    Wording{ProfileProblem::kNoHome, ExitCode::kFailed,
            "there is no folder for profiles, because the user has no home folder",
            "set HOME or XDG_CONFIG_HOME"},
    Wording{ProfileProblem::kNoSuchProfile, ExitCode::kRefused, "there is no profile {what}",
            "see what there is: trxctl profile list"},
    Wording{ProfileProblem::kNameTaken, ExitCode::kRefused, "there is already a profile {what}",
            "choose another name, or replace it with --replace"},
    Wording{ProfileProblem::kFileTaken, ExitCode::kRefused, "there is already a file {what}",
            "choose another name, or replace it with --replace"},
    Wording{ProfileProblem::kMisplaced, ExitCode::kRefused,
            "{profile} cannot be used, because the file kept for it holds the profile {what}",
            "import the file under the name that you want: trxctl profile import FILE --name NAME"},
    Wording{ProfileProblem::kUnreadable, ExitCode::kFailed, "{what} cannot be read: {reason}",
            "see that it is there and that you may read it"},
    Wording{ProfileProblem::kUnwritable, ExitCode::kFailed, "{what} cannot be written: {reason}",
            "see that the folder is there, that you may write to it and that there is space"},

    Wording{ProfileProblem::kStoredIsNoChoice, ExitCode::kRefused,
            "the stored number {number} is no {choice}, so nothing was saved",
            "choose one first: {command}"},

    Wording{ProfileProblem::kTooLarge, ExitCode::kRefused, "{profile} is larger than 1 MiB",
            kGetAnew},
    Wording{ProfileProblem::kNoUtf8, ExitCode::kRefused, "{profile} is not text in UTF-8",
            kGetAnew},
    Wording{ProfileProblem::kNoJson, ExitCode::kRefused, "{profile} is not JSON", kGetAnew},
    Wording{ProfileProblem::kTooDeep, ExitCode::kRefused, "{profile} is nested too deeply",
            kGetAnew},
    Wording{ProfileProblem::kMemberTwice, ExitCode::kRefused,
            "{profile} has {what} twice in one object", kGetAnew},
    Wording{ProfileProblem::kNoMember, ExitCode::kRefused, "{profile} lacks {what}", kGetAnew},
    Wording{ProfileProblem::kNotObject, ExitCode::kRefused,
            "{profile} has something else where an object belongs", kGetAnew},
    Wording{ProfileProblem::kNotList, ExitCode::kRefused, "{profile} has {what} that is no list",
            kGetAnew},
    Wording{ProfileProblem::kNotText, ExitCode::kRefused, "{profile} has {what} that is no text",
            kGetAnew},
    Wording{ProfileProblem::kNotNumber, ExitCode::kRefused,
            "{profile} has {what} that is no whole number", kGetAnew},
    Wording{ProfileProblem::kOtherFormat, ExitCode::kRefused,
            "{profile} is in format {number}; this trxctl knows format 1 only",
            "a newer trxctl may know it; this one is trxctl " TRXCTL_VERSION},
    Wording{ProfileProblem::kUnknownModel, ExitCode::kRefused,
            "{profile} is for the model {what}, which has no settings here",
            "see which models have: trxctl models"},
    Wording{ProfileProblem::kNoSettings, ExitCode::kRefused, "{profile} holds no setting",
            kGetAnew},
    Wording{ProfileProblem::kUnknownSetting, ExitCode::kRefused,
            "{profile} sets {what}, which {model} does not have", kSeeModel},
    Wording{ProfileProblem::kNotTaken, ExitCode::kRefused,
            "{profile} sets the {kind}, for which {model} takes no choice from the list",
            kSeeModel},
    Wording{ProfileProblem::kUnknownChannel, ExitCode::kRefused,
            "{profile} sets channel {number} of the {kind}, which {model} does not have",
            kSeeModel},
    Wording{ProfileProblem::kNoChannels, ExitCode::kRefused,
            "{profile} names a channel of the {kind}, which has none", kGetAnew},
    Wording{ProfileProblem::kUnknownText, ExitCode::kRefused,
            "{profile} sets the {setting} to {what}, which is no {choice} of {model}",
            "see what there is to choose from: {command}"},
    Wording{
        ProfileProblem::kDisagree, ExitCode::kRefused,
        "{profile} sets the {setting} to {what} and to number {number}, which is another choice "
        "or none",
        "see what there is to choose from: {command}"},
    Wording{ProfileProblem::kSettingTwice, ExitCode::kRefused, "{profile} sets the {setting} twice",
            kGetAnew},
};

const Wording &WordingOf(ProfileProblem problem) {
  return *std::find_if(kWordings.begin(), kWordings.end(),
                       [problem](const Wording &one) { return one.problem == problem; });
}

using Blanks = std::vector<std::pair<std::string_view, std::string>>;

Blanks BlanksOf(const ProfileFault &fault, const std::string &profile) {
  Blanks blanks{{"{profile}", profile},
                {"{what}", Quoted(fault.what)},
                {"{number}", std::to_string(fault.number)},
                {"{reason}", std::strerror(fault.reason)}};
  if (fault.model != nullptr) blanks.emplace_back("{model}", fault.model->name);
  if (fault.setting) {
    blanks.emplace_back("{setting}", TitleOf(*fault.setting));
    blanks.emplace_back("{kind}", fault.setting->kind->title);
    blanks.emplace_back("{choice}", fault.setting->kind->choice);
    blanks.emplace_back("{command}", CommandLineFor(*fault.setting));
  }
  return blanks;
}

/// The text with its blanks filled in, once: what is filled in may hold braces of its own.
std::string Filled(std::string_view text, const Blanks &blanks) {
  std::string filled;
  while (!text.empty()) {
    const auto blank = std::find_if(blanks.begin(), blanks.end(), [text](const auto &one) {
      return text.starts_with(one.first);
    });
    filled += blank == blanks.end() ? std::string(1, text.front()) : blank->second;
    text.remove_prefix(blank == blanks.end() ? 1 : blank->first.size());
  }
  return filled;
}

/// The names of the profiles that there are, as far as they can be found out.
std::vector<std::string> NamesThereAre() {
  try {
    return client::ProfileNames();
  } catch (const ProfileFault &) {
    return {};
  }
}

}  // namespace

std::string SentenceFor(const ProfileFault &fault, const std::string &profile) {
  return Filled(WordingOf(fault.problem).message, BlanksOf(fault, profile));
}

Failure FailureFor(const ProfileFault &fault, const std::string &profile) {
  const Wording &wording = WordingOf(fault.problem);
  Failure failure{wording.code, SentenceFor(fault, profile),
                  Filled(wording.hint, BlanksOf(fault, profile))};
  if (fault.problem != ProfileProblem::kNoSuchProfile) return failure;
  failure.choices = NamesThereAre();
  if (const auto nearest = Nearest(fault.what, failure.choices)) {
    failure.hint = "did you mean " + Quoted(*nearest) + "?";
  }
  return failure;
}

}  // namespace trxctl
