#include "Diagnose.h"

#include <array>
#include <cerrno>
#include <cstring>

#include "AutoApplyWords.h"
#include "PlatformWords.h"
#include "Progress.h"
#include "Words.h"
#include "client/Diagnosis.h"

namespace trxctl {
namespace {

using client::Check;
using client::Finding;

constexpr char kReloadRules[] = "sudo udevadm control --reload && sudo udevadm trigger";
constexpr char kRule[] = "70-trx-selva.rules";

/// The names of what is checked, in the order of client::CheckedPart; programs read them, too.
constexpr std::array<std::string_view, 11> kPartNames{"USB",
                                                      "maker",
                                                      "mixer",
                                                      "node",
                                                      "access",
                                                      "answer",
                                                      "session bus",
                                                      "Preferences folder",
                                                      "settings files",
                                                      "installation",
                                                      "autoapply"};

std::string_view NameOf(const Check &check) {
  return kPartNames.at(static_cast<std::size_t>(check.part));
}

std::string ReasonOf(const Check &check) { return std::strerror(check.reason); }

std::string MixerOf(const Check &check) { return Describe(check.mixers.front()); }

std::string NodeOf(const Check &check) { return check.mixers.front().node; }

std::string PathOf(const Check &check) { return Printable(check.path); }

std::string MixersAsText(const Check &check) {
  if (check.mixers.empty()) return "at least one is connected";
  std::vector<std::string> described;
  for (const client::Mixer &mixer : check.mixers) described.push_back(Describe(mixer));
  return Joined(described);
}

std::string OthersAsText(const Check &check) {
  if (check.names.empty()) return "no other product of the mixers' maker is connected";
  return "another product of the mixers' maker is connected: " + Printable(Joined(check.names));
}

std::string FilesAsText(const Check &check) {
  std::vector<std::string> found;
  if (check.count > 0) found.push_back(Counted(check.count, "file") + " in good order");
  if (check.otherCount > 0) {
    found.push_back(Counted(check.otherCount, "file") + " without effect on any setting");
  }
  return found.empty() ? "none stored yet" : Joined(found);
}

std::string AutoApplyAsText(const Check &check) {
  if (check.otherCount != 0) return "sending at plug-in is turned off";
  const auto obstacle = AutoApplyObstacleAsText(check.autoApply);
  if (obstacle) return "sending at plug-in does not work here: " + obstacle->text;
  return "a mixer that is plugged in gets the stored settings";
}

/// What is said of a part that is in good order.
std::string GoodAsText(const Check &check) {
  switch (check.part) {
    case client::CheckedPart::kUsb:
      return Counted(check.count, "USB device") + " seen, hubs included";
    case client::CheckedPart::kMaker:
      return OthersAsText(check);
    case client::CheckedPart::kMixer:
      return MixersAsText(check);
    case client::CheckedPart::kNode:
      return NodeOf(check);
    case client::CheckedPart::kAccess:
      return MixerOf(check) + " may be opened";
    case client::CheckedPart::kAnswer:
      return "the mixers that may be opened answer a request";
    case client::CheckedPart::kSessionBus:
      return "reached";
    case client::CheckedPart::kSettingsFolder:
      return PathOf(check) + (check.otherCount != 0 ? "" : " (made with the first change)");
    case client::CheckedPart::kSettingsFiles:
      return FilesAsText(check);
    case client::CheckedPart::kAutoApply:
      return AutoApplyAsText(check);
    case client::CheckedPart::kInstallation:
      break;
  }
  return Printable("library " + check.names.front() + ", package " + check.names.back());
}

/// What to do when the settings folder takes no file.
std::string FolderHint(int reason) {
  if (reason == ENOSPC || reason == EDQUOT) return "delete what is not needed on that disk";
  if (reason == EROFS) return "the file system is mounted read-only; mount it for writing";
  return "make that folder writable for this user";
}

/// What a check came to, in words.
struct Verdict {
  ExitCode code;
  std::string finding;
  /// What to do; empty when all is well.
  std::string hint = {};
};

Verdict VerdictOf(const Check &check) {
  static const std::string kCountsAsNotStored = "its settings count as not stored; remove it";
  static const std::string kKeepsFromStoring =
      "its settings count as not stored, and nothing is stored in its place; remove it";
  switch (check.finding) {
    case Finding::kGood:
      break;
    case Finding::kUsbHidden:
      return {ExitCode::kFailed, check.path + " cannot be read: " + ReasonOf(check),
              "run trxctl on the machine itself; a container needs its /sys and /dev/bus/usb"};
    case Finding::kNoUsbDevice:
      return {
          ExitCode::kFailed, "the system shows no USB device at all, not even a hub",
          "see that USB is switched on in the firmware; a virtual machine needs a USB controller"};
    case Finding::kOnlyOtherProducts:
      return {ExitCode::kNoMixer, OthersAsText(check),
              "this product has no settings here; connect a mixer of the TRX-SELVA family"};
    case Finding::kNoMixer:
      return {ExitCode::kNoMixer, "no mixer is connected",
              "connect a mixer by USB, switch it on, and try another cable or port"};
    case Finding::kNodeMissing:
      return {ExitCode::kNoAccess, NodeOf(check) + " of " + MixerOf(check) + " is not there",
              "plug the mixer out and in again; a container needs /dev/bus/usb of the machine"};
    case Finding::kNoRule:
      return {ExitCode::kNoAccess,
              MixerOf(check) + " may not be opened by this user; the udev rule " + kRule +
                  " is not installed",
              "run: sudo cp " + PathOf(check) + " /etc/udev/rules.d/ && " + kReloadRules};
    case Finding::kRuleWithoutEffect:
      return {ExitCode::kNoAccess,
              MixerOf(check) + " may not be opened by this user, although the udev rule " + kRule +
                  " is installed in " + Joined(check.names),
              std::string("run: ") + kReloadRules +
                  "; the rule serves whoever sits at the machine, not a session from elsewhere"};
    case Finding::kHeld:
      return {ExitCode::kNoAccess, MixerOf(check) + " is held by another program",
              "end the program that holds it; lsof " + NodeOf(check) + " names it"};
    case Finding::kNotOpened:
      return {ExitCode::kNoAccess,
              MixerOf(check) + " may not be opened by this user: " + ReasonOf(check),
              "plug the mixer out and in again"};
    case Finding::kNoAnswer:
      return {ExitCode::kFailed,
              DescribeWithSerial(check.mixers.front()) + (check.outcome == client::Outcome::kRefused
                                                              ? ", refuses a request"
                                                              : ", does not answer a request"),
              "switch the mixer off and on again, and connect it without a hub"};
    case Finding::kNoSessionBus:
      return {ExitCode::kFailed, "there is none, so programs do not learn of each other's changes",
              "run trxctl in a desktop session, or everything together under dbus-run-session"};
    case Finding::kSessionBusSilent:
      return {ExitCode::kFailed,
              "it does not answer, so programs do not learn of each other's changes",
              "log out and in again"};
    case Finding::kNoHome:
      return {ExitCode::kNotStored, "this user has no home folder to keep settings in",
              std::string(kPlatformWords.withoutHome)};
    case Finding::kFolderNotWritable:
    case Finding::kNoFolder:
      return {ExitCode::kNotStored,
              "settings cannot be stored in " + PathOf(check) + ": " + Printable(check.obstacle) +
                  ": " + ReasonOf(check),
              check.finding == Finding::kNoFolder ? "remove what is in its place"
                                                  : FolderHint(check.reason)};
    case Finding::kFileIsNone:
      return {ExitCode::kFailed, PathOf(check) + ": is no file", kCountsAsNotStored};
    case Finding::kFileTooLarge:
      return {ExitCode::kFailed, PathOf(check) + ": is too large for settings", kKeepsFromStoring};
    case Finding::kFileTooDeep:
      return {ExitCode::kFailed, PathOf(check) + ": its lists are nested too deeply for settings",
              kKeepsFromStoring};
    case Finding::kFileUnreadable:
      return {
          ExitCode::kFailed,
          PathOf(check) + ": cannot be read" + (check.reason == 0 ? "" : ": " + ReasonOf(check)),
          kCountsAsNotStored + ", or make it readable for this user"};
    case Finding::kFileIsNoList:
      return {ExitCode::kFailed, PathOf(check) + ": is no property list with a dictionary in it",
              kCountsAsNotStored};
    case Finding::kNoChoice: {
      const client::Setting &first = check.settings.front();
      return {ExitCode::kFailed,
              PathOf(check) + ": the " + TitleOf(first) + " stored is " +
                  std::to_string(first.Current()) + ", which is no " +
                  std::string(first.kind->choice),
              StoreOneHint(first)};
    }
    case Finding::kFileKept:
      return {
          ExitCode::kFailed,
          "earlier settings that could not be read are kept in " + Printable(Joined(check.names)),
          "to use them again, make the file readable for this user and rename it to " +
              PathOf(check) + "; otherwise remove it"};
    case Finding::kNoLibraryVersion:
    case Finding::kNoPackageVersion:
      return {ExitCode::kFailed,
              std::string("the files with the version of the ") +
                  (check.finding == Finding::kNoLibraryVersion ? "library" : "package") +
                  " are missing",
              std::string(kPlatformWords.withoutVersionFiles)};
    case Finding::kAutoApplyBroken: {
      const auto obstacle = AutoApplyObstacleAsText(check.autoApply).value_or(AutoApplyWords{});
      return {ExitCode::kFailed, "sending at plug-in cannot work: " + obstacle.text, obstacle.hint};
    }
  }
  return {ExitCode::kDone, GoodAsText(check)};
}

std::string AsText(const Output &output, const Check &check, const Verdict &verdict) {
  const std::string name(NameOf(check));
  if (check.IsGood()) return "ok       " + name + ": " + verdict.finding + '\n';
  return output.Strong("problem  " + name) + ": " + verdict.finding + "\n  hint: " + verdict.hint +
         '\n';
}

Json AsJson(const Check &check, const Verdict &verdict) {
  Json json{{"check", NameOf(check)}, {"ok", check.IsGood()}, {"message", verdict.finding}};
  if (!check.IsGood()) {
    json["kind"] = EntryOf(verdict.code).kind;
    json["hint"] = verdict.hint;
  }
  return json;
}

ExitCode Run(const Session &session) {
  const Progress progress(session.output);
  std::string text;
  Json list = Json::array();
  ExitCode code = ExitCode::kDone;
  for (const Check &check : client::Diagnose(session.Models())) {
    const Verdict verdict = VerdictOf(check);
    text += AsText(session.output, check, verdict);
    list.push_back(AsJson(check, verdict));
    if (code == ExitCode::kDone) code = verdict.code;
  }
  session.output.Print(
      text, {{"ok", code == ExitCode::kDone}, {"code", static_cast<int>(code)}, {"checks", list}});
  return code;
}

}  // namespace

Command MakeDiagnose(CLI::App &program) {
  CLI::App *app =
      program.add_subcommand("diagnose", "Tell why a mixer is not found or cannot be used");
  app->footer(
      std::string("Looks at everything from the USB bus to the settings files, a line each, and\n"
                  "ends with the exit code for the first problem. A file is written to the\n"
                  "settings folder and removed again; nothing else is changed.\n"
                  "\n"
                  "Examples:\n"
                  "  trxctl diagnose\n"
                  "  trxctl diagnose --json\n") +
      kSharedOptionsHelp);
  return {app, Run};
}

}  // namespace trxctl
