#include "Json.h"

#include <cstring>

#include "Words.h"

namespace trxctl {

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

Json MixerAsJson(const client::MixerResult &result) {
  const client::Mixer &mixer = result.mixer;
  Json json{{"product", Printable(mixer.product)},
            {"bus", mixer.bus},
            {"address", mixer.address},
            {"serial", nullptr},
            {"accessible", result.refusal == 0}};
  if (!mixer.serial.empty()) json["serial"] = Printable(mixer.serial);
  if (result.refusal != 0) json["reason"] = std::strerror(result.refusal);
  return json;
}

Json DeliveryAsJson(const client::Delivery &delivery) {
  Json json{
      {"connected", delivery.connected}, {"sent_to", delivery.Taken()}, {"mixers", Json::array()}};
  if (delivery.connected && delivery.mixers.empty()) json["sent_to"] = nullptr;
  for (const client::MixerResult &result : delivery.mixers) {
    json["mixers"].push_back(MixerAsJson(result));
  }
  return json;
}

}  // namespace trxctl
