#include "Delivery.h"

#include <algorithm>

#include "LibraryText.h"

namespace client {

std::size_t Delivery::Taken() const {
  return static_cast<std::size_t>(std::count_if(
      mixers.begin(), mixers.end(), [](const MixerResult &result) { return result.refusal == 0; }));
}

bool Delivery::IsNoneOpened() const { return !mixers.empty() && Taken() == 0; }

Delivery Reachable() {
  Delivery delivery{.connected = IsMixerConnected()};
  if (!delivery.connected) return delivery;
  for (const Mixer &mixer : ConnectedMixers()) {
    delivery.mixers.push_back({mixer, RefusalToOpen(mixer)});
  }
  return delivery;
}

SendResult Set(const Setting &setting, uint32_t index) {
  SendResult result;
  result.status = setting.kind->functions.set(setting.model->id, setting.channel, index);
  result.delivery = Reachable();
  // The library does not tell when the settings file cannot be written; reading the setting back
  // does.
  result.isStored = setting.Current() == static_cast<int32_t>(index);
  return result;
}

AgainObstacle ObstacleToAgain(const Setting &setting) {
  const int32_t stored = setting.Current();
  if (!setting.TakesChoices()) return AgainObstacle::kTakesNoChoices;
  if (!setting.TextOf(stored)) return AgainObstacle::kNoChoice;
  return setting.CanSendAgain(stored) ? AgainObstacle::kNone : AgainObstacle::kOnlyFirst;
}

SendResult SendAgain(const Setting &setting) {
  const StatusCode status = setting.kind->functions.again(setting.model->id, setting.channel);
  return {.status = status, .delivery = Reachable(), .isStored = true};
}

SendResult SendDefault(const Setting &setting) {
  const StatusCode status = setting.kind->extras.setDefault(setting.model->id, setting.channel);
  return {.status = status, .delivery = Reachable()};
}

SendResult SendRaw(const Setting &setting, int32_t group, uint32_t source) {
  const StatusCode status =
      setting.kind->extras.setRaw(setting.model->id, setting.channel, group, source);
  return {.status = status, .delivery = Reachable()};
}

std::optional<std::string> WarningText(const Setting &setting, int32_t language) {
  ORVStringRef text = nullptr;
  setting.kind->extras.warning(setting.model->id, setting.channel, ORV_SUCCESS_WITH_WARNING,
                               language, &text);
  return CharactersOf(text);
}

}  // namespace client
