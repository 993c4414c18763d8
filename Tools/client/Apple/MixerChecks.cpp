#include "MixerChecks.h"

namespace client {

std::vector<Check> CheckMixers() {
  // The platform says only whether there is a mixer, not how many there are.
  if (!IsMixerConnected()) return {{.part = CheckedPart::kMixer, .finding = Finding::kNoMixer}};
  std::vector<Check> checks{{.part = CheckedPart::kMixer}};
  const std::vector<Check> answers = CheckAnswers();
  checks.insert(checks.end(), answers.begin(), answers.end());
  return checks;
}

}  // namespace client
