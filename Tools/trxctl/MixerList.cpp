#include "MixerList.h"

#include <algorithm>
#include <cstring>

#include <TRX-SELVASetup/TRX-SELVASetup.h>

namespace trxctl {

bool IsMixerConnected() { return ORV_IsUSBConnection(ORV_PRODUCT_TRX_SELVA) == ORV_CONNECTED; }

std::size_t CountAccessible(const std::vector<Mixer> &mixers) {
  return static_cast<std::size_t>(std::count_if(
      mixers.begin(), mixers.end(), [](const Mixer &mixer) { return mixer.accessible(); }));
}

std::string Describe(const Mixer &mixer) {
  return mixer.product + " (bus " + std::to_string(mixer.bus) + ", address " +
         std::to_string(mixer.address) + ")";
}

nlohmann::ordered_json ToJson(const Mixer &mixer) {
  nlohmann::ordered_json json{{"product", mixer.product},
                              {"bus", mixer.bus},
                              {"address", mixer.address},
                              {"serial", nullptr},
                              {"accessible", mixer.accessible()}};
  if (!mixer.serial.empty()) json["serial"] = mixer.serial;
  if (!mixer.accessible()) json["reason"] = std::strerror(mixer.refusal);
  return json;
}

}  // namespace trxctl
