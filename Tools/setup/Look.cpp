#include "Look.h"

#include <algorithm>

#include "client/AutoApply.h"
#include "client/MixerChecks.h"

namespace setup {
namespace {

const client::Model &ModelOf(const std::vector<client::MixerResult> &mixers,
                             const client::Model &usual) {
  for (const client::MixerResult &result : mixers) {
    const client::Model *model = client::ModelRecognisedIn(result.mixer.product);
    if (model != nullptr && model->served) return *model;
  }
  return usual;
}

std::vector<client::Mixer> SilentIn(const std::vector<client::Check> &checks) {
  std::vector<client::Mixer> silent;
  for (const client::Check &check : checks) {
    if (check.finding == client::Finding::kNoAnswer) silent.push_back(check.mixers.front());
  }
  return silent;
}

/// Whether the selector of a recording channel is known to be elsewhere than on USB.
bool IsSelectorElsewhere(const Look &look, int32_t channel) {
  const auto place = static_cast<std::size_t>(channel);
  if (place >= look.selectors.size()) return false;
  const auto &selector = look.selectors.at(place);
  return selector && !(selector->isValid && IsUsbPosition(selector->position));
}

std::vector<Warning> WarningsFor(const Look &look, int32_t language) {
  std::vector<Warning> warnings;
  for (const StoredChoice &stored : look.stored) {
    const client::Setting &setting = stored.setting;
    if (!IsControlTone(setting, stored.index) || !IsSelectorElsewhere(look, setting.channel))
      continue;
    warnings.push_back(
        {setting.channel, client::WarningText(setting, language).value_or(std::string())});
  }
  return warnings;
}

}  // namespace

bool Look::CanSend() const {
  if (mixers.empty()) return isConnected;
  return std::any_of(mixers.begin(), mixers.end(),
                     [](const client::MixerResult &result) { return result.IsOpened(); });
}

const client::Check *Look::Problem() const {
  const auto found = std::find_if(checks.begin(), checks.end(),
                                  [](const client::Check &check) { return !check.IsGood(); });
  return found == checks.end() ? nullptr : &*found;
}

std::vector<client::Setting> SettingsShown(const client::Model &model) {
  std::vector<client::Setting> settings = client::SettingsOf(model);
  std::erase_if(settings, [](const client::Setting &setting) { return !setting.TakesChoices(); });
  return settings;
}

std::vector<StoredChoice> LookAtStored(const client::Model &model) {
  std::vector<StoredChoice> stored;
  for (const client::Setting &setting : SettingsShown(model)) {
    stored.push_back({setting, setting.Current()});
  }
  return stored;
}

Look LookAround(const client::Model &usual) {
  const client::Delivery reachable = client::Reachable();
  Look look{.isConnected = reachable.isConnected, .mixers = reachable.mixers};
  look.isAutoApplyOn = client::IsAutoApplyOn();
  look.model = &ModelOf(look.mixers, usual);
  look.stored = LookAtStored(*look.model);
  // With nobody to ask, these checks do not wait.
  if (!look.CanSend()) look.checks = client::CheckMixers();
  return look;
}

Look LookAndAsk(const client::Model &usual, int32_t language) {
  Look look = LookAround(usual);
  if (!look.CanSend()) return look;
  look.isAsked = true;
  // Each question to a mixer that does not answer takes five seconds, so one has to do.
  look.silent = SilentIn(client::CheckAnswers());
  if (!look.silent.empty()) return look;
  const client::MixerStatus status = client::AskStatus(*look.model);
  look.firmware = status.firmware;
  look.selectors = status.selectors;
  look.warnings = WarningsFor(look, language);
  return look;
}

bool IsUsbPosition(uint32_t position) {
  constexpr uint32_t kFirstUsbPosition = 6;
  constexpr uint32_t kSecondUsbPosition = 7;
  return position == kFirstUsbPosition || position == kSecondUsbPosition;
}

bool IsControlTone(const client::Setting &setting, int32_t index) {
  // The kit knows which choices a warning is for, whatever the mixer says now.
  return setting.kind->extras.warning != nullptr &&
         client::IsWarningFor(setting, {.status = ORV_SUCCESS_WITH_WARNING}, index);
}

}  // namespace setup
