#include "Reach.h"

#include <cstring>

#include "Failure.h"
#include "Text.h"

namespace trxctl {

void RequireReached(const Reach &reach, const std::string &message) {
  if (!reach.connected) {
    throw Failure{ExitCode::kNoMixer, "no mixer is connected, so " + message,
                  "connect a mixer and switch it on, then try again"};
  }
  if (!reach.mixers.empty() && reach.accessible == 0) {
    throw Failure{ExitCode::kNoAccess,
                  message + ": " + Describe(reach.mixers.front()) + " may not be opened (" +
                      std::strerror(reach.mixers.front().refusal) + ")",
                  AccessHint(reach.mixers)};
  }
}

std::string CountAsText(const Reach &reach) {
  if (reach.mixers.empty()) return "";
  return std::to_string(reach.accessible) + " of " +
         Counted(reach.mixers.size(), "connected mixer");
}

std::string ReachAsText(const Reach &reach) {
  if (reach.mixers.empty()) return "Sent; the system does not tell to how many mixers.\n";
  std::string text = "Sent to " + CountAsText(reach) + ".\n";
  for (const Mixer &mixer : reach.mixers) {
    if (mixer.accessible()) continue;
    text += "Not sent to " + Describe(mixer) +
            ", which may not be opened: " + std::strerror(mixer.refusal) + '\n';
  }
  if (reach.accessible < reach.mixers.size()) text += "hint: " + AccessHint(reach.mixers) + '\n';
  return text;
}

nlohmann::ordered_json ReachAsJson(const Reach &reach) {
  nlohmann::ordered_json json{{"connected", reach.connected},
                              {"sent_to", reach.accessible},
                              {"mixers", nlohmann::ordered_json::array()}};
  if (reach.connected && reach.mixers.empty()) json["sent_to"] = nullptr;
  for (const Mixer &mixer : reach.mixers) json["mixers"].push_back(ToJson(mixer));
  return json;
}

}  // namespace trxctl
