#include "MixerChecks.h"

namespace client {

std::vector<Check> CheckMixers() {
  // How many mixers there are is not told here; only that there is one.
  if (!IsMixerConnected()) return {{.part = CheckedPart::kMixer, .finding = Finding::kNoMixer}};
  std::vector<Check> checks{{.part = CheckedPart::kMixer}};
  const std::vector<Check> answers = CheckAnswers();
  checks.insert(checks.end(), answers.begin(), answers.end());
  return checks;
}

}  // namespace client
