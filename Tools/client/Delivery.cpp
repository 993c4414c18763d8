#include "Delivery.h"

#include <algorithm>
#include <cerrno>
#include <tuple>

#include "LibraryText.h"

namespace client {

namespace {

Outcome OutcomeOfRefusal(int refusal) {
  switch (refusal) {
    case 0:
      return Outcome::kDone;
    case EACCES:
    case EPERM:
      return Outcome::kNoPermission;
    case EBUSY:
      return Outcome::kBusy;
    case ENODEV:
    case ENOENT:
      return Outcome::kGone;
    default:
      return Outcome::kFailed;
  }
}

bool IsAt(const Mixer &mixer, const Request &request) {
  return mixer.bus == request.bus && mixer.address == request.address &&
         mixer.location == request.location;
}

/// The mixer that a request went to, also one that nobody saw before.
Mixer MixerOf(const Request &request, const std::vector<Mixer> &known) {
  const auto found = std::find_if(known.begin(), known.end(),
                                  [&request](const Mixer &mixer) { return IsAt(mixer, request); });
  if (found != known.end()) return *found;
  Mixer mixer{"mixer", request.bus, request.address};
  mixer.location = request.location;
  return mixer;
}

MixerResult ResultOf(const Request &request, const std::vector<Mixer> &known) {
  MixerResult result{MixerOf(request, known), request.outcome};
  if (request.isOpened) return result;
  // The system's own words say more than the outcome.
  const int refusal = RefusalToOpen(result.mixer);
  result.refusal = refusal == 0 ? EIO : refusal;
  return result;
}

/// Calls a function of the library and watches what becomes of its requests.
template <typename Call>
SendResult Watched(const Call &call) {
  const std::vector<Mixer> known = ConnectedMixers();
  const RequestLog log;
  const StatusCode status = call();
  return {.status = status, .delivery = DeliveryOf(log, known)};
}

}  // namespace

std::size_t Delivery::CountTaken() const {
  return static_cast<std::size_t>(
      std::count_if(mixers.begin(), mixers.end(),
                    [](const MixerResult &result) { return result.outcome == Outcome::kDone; }));
}

bool Delivery::IsNoneOpened() const {
  return !mixers.empty() &&
         std::none_of(mixers.begin(), mixers.end(),
                      [](const MixerResult &result) { return result.IsOpened(); });
}

void Delivery::Add(const Delivery &other) {
  isConnected = isConnected || other.isConnected;
  for (const MixerResult &result : other.mixers) {
    const auto found = std::find_if(mixers.begin(), mixers.end(), [&](const MixerResult &mine) {
      return std::tie(mine.mixer.bus, mine.mixer.address, mine.mixer.location) ==
             std::tie(result.mixer.bus, result.mixer.address, result.mixer.location);
    });
    if (found == mixers.end()) {
      mixers.push_back(result);
    } else if (found->outcome == Outcome::kDone) {
      *found = result;
    }
  }
}

Delivery Reachable() {
  Delivery delivery{.isConnected = IsMixerConnected()};
  if (!delivery.isConnected) return delivery;
  for (const Mixer &mixer : ConnectedMixers()) {
    const int refusal = RefusalToOpen(mixer);
    delivery.mixers.push_back({mixer, OutcomeOfRefusal(refusal), refusal});
  }
  return delivery;
}

// A function writes first and reads then, so the first request to a mixer is the one that counts.
Delivery DeliveryOf(const RequestLog &log, const std::vector<Mixer> &known) {
  Delivery delivery;
  for (const Request &request : log.Requests()) {
    const bool isFirst =
        std::none_of(delivery.mixers.begin(), delivery.mixers.end(),
                     [&](const MixerResult &result) { return IsAt(result.mixer, request); });
    if (isFirst) delivery.mixers.push_back(ResultOf(request, known));
  }
  delivery.isConnected = !delivery.mixers.empty();
  return delivery;
}

const Model *AgreedModel(const std::vector<Mixer> &mixers) {
  const Model *agreed = nullptr;
  for (const Mixer &mixer : mixers) {
    const Model *model = ModelRecognisedIn(mixer.product);
    if (model == nullptr || !model->served || (agreed != nullptr && model != agreed))
      return nullptr;
    agreed = model;
  }
  return agreed;
}

SendResult Set(const Setting &setting, uint32_t index) {
  SendResult result = Watched(
      [&] { return setting.kind->functions.set(setting.model->id, setting.channel, index); });
  // The library does not tell when the settings file cannot be written; reading the setting back
  // does.
  result.isStored = setting.Current() == static_cast<int32_t>(index) && setting.IsStored();
  return result;
}

AgainObstacle ObstacleToAgain(const Setting &setting) {
  const int32_t stored = setting.Current();
  if (!setting.TakesChoices()) return AgainObstacle::kTakesNoChoices;
  if (!setting.TextOf(stored)) return AgainObstacle::kNoChoice;
  return setting.CanSendAgain(stored) ? AgainObstacle::kNone : AgainObstacle::kOnlyFirst;
}

SendResult SendAgain(const Setting &setting) {
  return Watched([&] { return setting.kind->functions.again(setting.model->id, setting.channel); });
}

SendResult SendDefault(const Setting &setting) {
  return Watched(
      [&] { return setting.kind->extras.setDefault(setting.model->id, setting.channel); });
}

SendResult SendRaw(const Setting &setting, int32_t group, uint32_t source) {
  return Watched([&] {
    return setting.kind->extras.setRaw(setting.model->id, setting.channel, group, source);
  });
}

bool IsWarningFor(const Setting &setting, const SendResult &result, int32_t index) {
  return result.status == ORV_SUCCESS_WITH_WARNING &&
         setting.TextOf(index).value_or("").find("Control Tone") != std::string::npos;
}

std::optional<std::string> WarningText(const Setting &setting, int32_t language) {
  ORVStringRef text = nullptr;
  setting.kind->extras.warning(setting.model->id, setting.channel, ORV_SUCCESS_WITH_WARNING,
                               language, &text);
  return CharactersOf(text);
}

}  // namespace client
