#include "Json.h"

#include <array>
#include <cstring>
#include <string_view>

#include "Words.h"

namespace trxctl {
namespace {

// In the order of client::Outcome.
constexpr std::array<std::string_view, 7> kResults{"taken",         "refused", "no_answer", "gone",
                                                   "no_permission", "busy",    "failed"};

}  // namespace

Json ChoiceAsJson(const client::Setting &setting, int32_t index) {
  Json json{{"index", index}, {"text", nullptr}};
  if (const auto text = setting.TextOf(index)) json["text"] = *text;
  return json;
}

Json NameAsJson(const client::Setting &setting) {
  Json json{{"setting", setting.kind->name}};
  if (setting.kind->hasChannels) json["channel"] = setting.channel + 1LL;
  return json;
}

Json HeadingAsJson(const client::Setting &setting) {
  Json json{{"model", setting.model->name}};
  json.update(NameAsJson(setting));
  return json;
}

Json CurrentAsJson(const client::Setting &setting) {
  Json json = ChoiceAsJson(setting, setting.Current());
  json["stored"] = setting.IsStored();
  return json;
}

Json MixerAsJson(const client::Mixer &mixer) {
  Json json{{"product", Printable(mixer.product)},
            {"bus", mixer.bus},
            {"address", mixer.address},
            {"serial", nullptr}};
  if (!mixer.serial.empty()) json["serial"] = Printable(mixer.serial);
  if (mixer.location != 0) json["location"] = mixer.location;
  return json;
}

Json AccessAsJson(const client::MixerResult &result) {
  Json json = MixerAsJson(result.mixer);
  json["accessible"] = result.IsOpened();
  if (!result.IsOpened()) json["reason"] = std::strerror(result.refusal);
  return json;
}

Json DeliveryAsJson(const client::Delivery &delivery) {
  Json json{{"connected", delivery.isConnected},
            {"sent_to", delivery.CountTaken()},
            {"mixers", Json::array()}};
  for (const client::MixerResult &result : delivery.mixers) {
    Json mixer = AccessAsJson(result);
    mixer["result"] = kResults.at(static_cast<std::size_t>(result.outcome));
    json["mixers"].push_back(std::move(mixer));
  }
  return json;
}

Json ResultAsJson(const client::SendResult &result) {
  Json json{{"status", result.status}};
  json.update(DeliveryAsJson(result.delivery));
  return json;
}

}  // namespace trxctl
