#include "MixerChecks.h"

namespace client {

std::vector<Check> CheckMixers() {
  // How many mixers there are is not told here; only that there is one.
  if (!IsMixerConnected()) return {{.part = CheckedPart::kMixer, .finding = Finding::kNoMixer}};
  return {{.part = CheckedPart::kMixer}, CheckAnswer()};
}

}  // namespace client
