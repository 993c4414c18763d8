#include "CheckMixers.h"

#include "CheckAnswer.h"
#include "MixerList.h"

namespace trxctl {

std::vector<Check> CheckMixers() {
  if (!IsMixerConnected()) return {NoMixer()};
  return {Well("mixer", "at least one is connected"), CheckAnswer()};
}

}  // namespace trxctl
