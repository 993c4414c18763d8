// MIDI key mode: present in the interface, offered by no model. Every function refuses every call.
#include <array>

#include <TRX-SELVASetup/TRX-SELVASetup.h>

namespace {

[[maybe_unused]] constexpr std::array<const char *, 2> MidiKeyModeText = {"Toggle", "Trigger"};

}  // namespace

StatusCode ORV_GetNumOfMidiKeyModeIndex(ProductId /*productId*/, uint32_t * /*count*/) {
  return ORV_BAD_ARGUMENT;
}

StatusCode ORV_GetMidiKeyModeText(ProductId /*productId*/, uint32_t /*index*/,
                                  uint32_t /*reserved*/, ORVStringRef * /*text*/) {
  return ORV_BAD_ARGUMENT;
}

StatusCode ORV_SetMidiKeyModeIndex(ProductId /*productId*/, uint32_t /*index*/) {
  return ORV_BAD_ARGUMENT;
}

StatusCode ORV_GetCurrentMidiKeyModeIndex(ProductId /*productId*/, int32_t * /*index*/) {
  return ORV_BAD_ARGUMENT;
}

StatusCode ORV_SetCurrentMidiKeyModeIndex(ProductId productId) {
  int32_t recorded = 0;
  ORV_GetCurrentMidiKeyModeIndex(productId, &recorded);
  return ORV_BAD_ARGUMENT;
}
