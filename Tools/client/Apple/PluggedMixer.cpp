#include "PluggedMixer.h"

#include "PlugEvent.h"

namespace client {

std::optional<Mixer> PluggedMixer(const std::string &device) {
  if (device != kPlugEvent) return std::nullopt;
  const auto product = ProductOfPlugEvent();
  if (!product) return std::nullopt;
  return Mixer{.product = *product};
}

// No permission is needed to open a mixer.
AccessWait WaitForAccess(const Mixer & /*mixer*/) { return {}; }

bool LeaveOtherMixersAlone(const Mixer & /*mixer*/) { return false; }

}  // namespace client
