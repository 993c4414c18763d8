#include "Plugged.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <optional>

#include "Sending.h"
#include "Words.h"
#include "client/AutoApply.h"
#include "client/PluggedMixer.h"

namespace trxctl {
namespace {

/// What one run comes to.
struct Report {
  ExitCode code = ExitCode::kDone;
  /// One word for programs.
  std::string_view result;
  /// Follows the mixer in the line.
  std::string text = {};
  Json sent = Json::array();
  Json notSent = Json::array();
};

Report NothingSent(ExitCode code, std::string_view result, const std::string &reason) {
  return {code, result, "nothing was sent: " + reason};
}

/// The settings of a model that this user has stored and that the model takes.
std::vector<client::Setting> StoredOf(const client::Model &model) {
  std::vector<client::Setting> settings = client::SettingsOf(model);
  std::erase_if(settings, [](const client::Setting &setting) {
    return !setting.TakesChoices() || !setting.IsStored();
  });
  return settings;
}

/// The other mixers that are connected.
std::vector<client::Mixer> OthersThan(const client::Mixer &mixer) {
  std::vector<client::Mixer> others = client::ConnectedMixers();
  std::erase_if(others, [&mixer](const client::Mixer &other) { return other.node == mixer.node; });
  return others;
}

/// Why the library must not be asked to send: mixers of another model would take it for theirs.
std::optional<std::string> ReasonAgainstSending(const client::Mixer &mixer,
                                                const client::Model &model) {
  if (client::LeaveOtherMixersAlone(mixer)) return std::nullopt;
  for (const client::Mixer &other : OthersThan(mixer)) {
    if (client::ModelRecognisedIn(other.product) == &model) continue;
    return "this system cannot keep " + Describe(other) + ", another model, from getting it too";
  }
  return std::nullopt;
}

/// What became of a value at this mixer; the others are no business of this run.
std::optional<client::MixerResult> ResultAt(const client::Mixer &mixer,
                                            const client::Delivery &delivery) {
  const auto found = std::find_if(
      delivery.mixers.begin(), delivery.mixers.end(), [&mixer](const client::MixerResult &result) {
        // Where places are not known there is no telling mixers apart.
        return mixer.bus == 0 ||
               (result.mixer.bus == mixer.bus && result.mixer.address == mixer.address);
      });
  return found == delivery.mixers.end() ? std::nullopt : std::optional(*found);
}

/// Why the mixer does not have a stored setting now, sent or not; nothing when it has it.
std::optional<std::string> Send(const client::Setting &setting, const client::Mixer &mixer,
                                ExitCode &code) {
  // A choice that cannot be sent again is as it is: no other run could do more.
  if (auto reason = ReasonAgainstAgain(setting)) return reason;
  const auto result = ResultAt(mixer, client::SendAgain(setting).delivery);
  if (result && result->outcome == client::Outcome::kDone) return std::nullopt;
  code = ExitCode::kPartlySent;
  return "the mixer " + (result ? OutcomeAsText(*result) : std::string("was unplugged"));
}

Report SendAll(const client::Mixer &mixer, const std::vector<client::Setting> &settings) {
  Report report{.result = "sent"};
  std::vector<std::string> sent;
  std::vector<std::string> notSent;
  for (const client::Setting &setting : settings) {
    Json json = NameAsJson(setting);
    json.update(CurrentAsJson(setting));
    if (const auto reason = Send(setting, mixer, report.code)) {
      json["reason"] = *reason;
      report.notSent.push_back(std::move(json));
      notSent.push_back(TitleOf(setting) + " (" + *reason + ")");
    } else {
      report.sent.push_back(std::move(json));
      sent.push_back(TitleOf(setting) + ' ' + CurrentAsText(setting));
    }
  }
  if (!sent.empty()) report.text = "sent " + Joined(sent);
  if (!notSent.empty()) {
    report.text += (sent.empty() ? "not sent: " : "; not sent: ") + Joined(notSent);
  }
  return report;
}

Report Refused(const client::AccessWait &wait) {
  if (wait.isWithoutSeat) {
    return NothingSent(ExitCode::kNoAccess, "no_seat",
                       "mixers are for the user at the machine, and this user is not");
  }
  if (wait.refusal == ENOENT || wait.refusal == ENODEV) {
    return NothingSent(ExitCode::kNoMixer, "gone", "it was unplugged");
  }
  const std::string reason = std::strerror(wait.refusal);
  return NothingSent(ExitCode::kNoAccess, "no_access", "it may not be opened (" + reason + ")");
}

Report Reapply(const client::Mixer &mixer) {
  if (!client::IsAutoApplyOn()) {
    return NothingSent(ExitCode::kDone, "off", "sending at plug-in is turned off");
  }
  const client::Model *model = client::ModelRecognisedIn(mixer.product);
  if (model == nullptr || !model->served) {
    return NothingSent(ExitCode::kDone, "unknown_model", "no model with settings has this name");
  }
  const std::vector<client::Setting> settings = StoredOf(*model);
  if (settings.empty()) {
    return NothingSent(ExitCode::kDone, "nothing_stored",
                       "this user has stored nothing for " + std::string(model->name));
  }
  const client::AccessWait wait = client::WaitForAccess(mixer);
  if (wait.refusal != 0) return Refused(wait);
  if (const auto reason = ReasonAgainstSending(mixer, *model)) {
    return NothingSent(ExitCode::kPartlySent, "others_in_the_way", *reason);
  }
  return SendAll(mixer, settings);
}

/// Whether this run follows another one for the same mixer, because something about the user's
/// sessions has changed since.
bool IsRepeated() { return std::getenv("TRIGGER_UNIT") != nullptr; }

}  // namespace

ExitCode ReapplyToPlugged(const Session &session, const std::string &device) {
  if (session.isModelGiven) {
    throw Failure{ExitCode::kUsage, "--plugged takes the model from the mixer",
                  "leave out --model"};
  }
  const auto mixer = client::PluggedMixer(device);
  if (!mixer) {
    throw Failure{ExitCode::kNoMixer, "no mixer is connected at " + Quoted(device),
                  "name the folder of a connected mixer below /sys, or its device file"};
  }
  const Report report = Reapply(*mixer);
  // A user without a seat hears of it once, not with each login from elsewhere.
  if (report.result == "no_seat" && IsRepeated()) return report.code;
  session.output.Print(DescribeWithSerial(*mixer) + ": " + report.text + '\n',
                       {{"mixer", MixerAsJson(*mixer)},
                        {"result", report.result},
                        {"sent", report.sent},
                        {"not_sent", report.notSent},
                        {"message", report.text}});
  return report.code;
}

}  // namespace trxctl
