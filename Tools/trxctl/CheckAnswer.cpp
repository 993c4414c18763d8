#include "CheckAnswer.h"

#include <TRX-SELVASetup/TRX-SELVASetup.h>

namespace trxctl {

Check NoMixer() {
  return {"mixer", ExitCode::kNoMixer, "no mixer is connected",
          "connect a mixer by USB, switch it on, and try another cable or port"};
}

Check CheckAnswer() {
  uint32_t active = 0;
  // Without an answer the library tells so.
  if (ORV_GetMixerSeratoActiveStatus(ORV_PRODUCT_TRX_SELVA, &active) == ORV_SUCCESS) {
    return Well("answer", "the mixers that may be opened answer a request");
  }
  return {"answer", ExitCode::kFailed, "a mixer does not answer a request, or not as it should",
          "switch the mixer off and on again, and connect it without a hub"};
}

}  // namespace trxctl
