// MIDI channel: which of the sixteen MIDI channels the mixer uses.
#include <array>

#include <TRX-SELVASetup/TRX-SELVASetup.h>

#include "ChangeKinds.h"
#include "ConnectedUnits.h"
#include "Product.h"
#include "SettingsFile.h"
#include "Text.h"

using namespace orv;

namespace {

constexpr ProductSet kModels = kVoltOnly;
constexpr const char *kKey = "MidiChannel";
constexpr std::int32_t kDefaultIndex = 0;

constexpr std::array<const char *, 16> MidiChannelText = {
    "CH 1", "CH 2",  "CH 3",  "CH 4",  "CH 5",  "CH 6",  "CH 7",  "CH 8",
    "CH 9", "CH 10", "CH 11", "CH 12", "CH 13", "CH 14", "CH 15", "CH 16"};

// Fewer channels can be sent again than can be set. Hosts know this bound and rely on it.
constexpr std::uint32_t kSentAgainBelow = 4;

std::uint16_t RequestValue(std::uint32_t index) { return static_cast<std::uint16_t>(index << 8); }

}  // namespace

StatusCode ORV_GetNumOfMidiChannelIndex(ProductId productId, uint32_t *count) {
  if (count == nullptr || !kModels.Contains(productId)) return ORV_BAD_ARGUMENT;
  *count = MidiChannelText.size();
  return ORV_SUCCESS;
}

StatusCode ORV_GetMidiChannelText(ProductId productId, uint32_t index, uint32_t /*reserved*/,
                                  ORVStringRef *text) {
  if (text == nullptr || !kModels.Contains(productId)) return ORV_BAD_ARGUMENT;
  if (index >= MidiChannelText.size()) return ORV_BAD_ARGUMENT;
  *text = TextOfLiteral(MidiChannelText[index]);
  return ORV_SUCCESS;
}

StatusCode ORV_SetMidiChannelIndex(ProductId productId, uint32_t index) {
  if (!kModels.Contains(productId)) return ORV_BAD_ARGUMENT;
  if (index >= MidiChannelText.size()) return ORV_BAD_ARGUMENT;
  ApplyToEveryUnit(productId, SetMidiChannelSetting, RequestValue(index));
  MergeSettingValue(ModelDisplayName(productId), kKey, static_cast<int32_t>(index));
  Announce(kMidiChannelChange, productId, index);
  return ORV_SUCCESS;
}

StatusCode ORV_GetCurrentMidiChannelIndex(ProductId productId, int32_t *index) {
  if (index == nullptr || !kModels.Contains(productId)) return ORV_BAD_ARGUMENT;
  GetSettingValue(ModelDisplayName(productId), kKey, kDefaultIndex, index);
  return ORV_SUCCESS;
}

StatusCode ORV_SetCurrentMidiChannelIndex(ProductId productId) {
  int32_t recorded = 0;
  if (ORV_GetCurrentMidiChannelIndex(productId, &recorded) != ORV_SUCCESS) return ORV_BAD_ARGUMENT;
  const auto index = static_cast<uint32_t>(recorded);
  if (index >= kSentAgainBelow) return ORV_BAD_ARGUMENT;
  ApplyToEveryUnit(productId, SetMidiChannelSetting, RequestValue(index));
  return ORV_SUCCESS;
}
