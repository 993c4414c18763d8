// USB output audio: which mixer channel each playback channel of the computer is assigned to.
// docs/compatibility.md has the reasons for bounds that differ between functions.
#include <array>

#include <TRX-SELVASetup/TRX-SELVASetup.h>

#include "ChangeKind.h"
#include "ConnectedUnits.h"
#include "Product.h"
#include "SettingsFile.h"
#include "Text.h"

using namespace orv;

namespace {

constexpr std::int32_t kChannels = 3;
constexpr std::int32_t kChannelsTakenBySetters = 5;
constexpr std::uint32_t kChoices = 3;
constexpr std::uint32_t kChoicesWithText = 4;

constexpr std::array<const char *, 4> OutputAudioText = {"CH1", "CH2", "AUX", nullptr};

// Indexes into OutputAudioText, one row for each channel. Hosts may use one index more than a row
// holds, which reads the next row: hence the fourth row.
constexpr std::array<std::int32_t, 12> TRXSELVA_OUT_TEXT = {
    0, 1, 2,  //
    0, 1, 2,  //
    0, 1, 2,  //
    0, 0, 0,
};

// The high byte is the channel, from 1; the low byte is the mixer's code for the destination.
constexpr std::array<std::uint16_t, 9> _convTableOut_SELVA = {
    0x0100, 0x0101, 0x0104,  //
    0x0200, 0x0201, 0x0204,  //
    0x0300, 0x0301, 0x0304,
};

constexpr std::array<const char *, kChannelsTakenBySetters> kKeys = {"Input0", "Input1", "Input2",
                                                                     "Input3", "Input4"};

// Nothing for an index past the end.
const std::uint16_t *RequestValue(std::int32_t channel, std::int64_t index) {
  const std::int64_t position = channel * std::int64_t{kChoices} + index;
  if (position < 0 || position >= std::ssize(_convTableOut_SELVA)) return nullptr;
  return &_convTableOut_SELVA[static_cast<std::size_t>(position)];
}

// The setters accept channels beyond the table and send 0 for them.
ConnectedUnits Apply(ProductId productId, std::int32_t channel, std::uint32_t index) {
  const std::uint16_t *const value = RequestValue(channel, index);
  return ApplyToEveryUnit(productId, SetMixerInputSetting, value != nullptr ? *value : 0);
}

// The reply is ignored: docs/compatibility.md.
void ReadBack(const ConnectedUnits &units) {
  VisitUnits(units, [](DeviceHandle unit) {
    std::array<std::uint8_t, 4> selectors = {};
    GetInputSelectorInfo(unit, selectors.data(), selectors.size());
    return Visit::kNext;
  });
}

bool IsTakenBySetters(ProductId productId, std::int32_t channel) {
  return channel >= 0 && channel < kChannelsTakenBySetters && kSelvaOnly.Contains(productId);
}

LastPosted outputAudioInfo;

}  // namespace

// Delivered like a change of the input routing.
constinit ChangeKind<ChannelIndexCallback> orv::outputAudioChange = {
    " OutputAudio Change", Delivery::kImmediately, outputAudioInfo};

StatusCode ORV_GetNumOfOutputAudioIndex(ProductId productId, int32_t channel, uint32_t *count) {
  if (count == nullptr || !kSelvaOnly.Contains(productId)) return ORV_BAD_ARGUMENT;
  if (channel < 0 || channel >= kChannels) return ORV_BAD_ARGUMENT;
  *count = kChoices;
  return ORV_SUCCESS;
}

StatusCode ORV_GetUSBOutputAudioText(ProductId productId, int32_t channel, uint32_t index,
                                     uint32_t /*reserved*/, ORVStringRef *text) {
  if (text == nullptr || !kSelvaOnly.Contains(productId)) return ORV_BAD_ARGUMENT;
  if (channel < 0 || channel >= kChannels) return ORV_BAD_ARGUMENT;
  if (index >= kChoicesWithText) return ORV_BAD_ARGUMENT;
  const std::int32_t number = TRXSELVA_OUT_TEXT[static_cast<uint32_t>(channel) * kChoices + index];
  *text = TextOfLiteral(OutputAudioText[static_cast<std::size_t>(number)]);
  return ORV_SUCCESS;
}

StatusCode ORV_SetUSBOutputAudio(ProductId productId, int32_t channel, uint32_t index) {
  if (!IsTakenBySetters(productId, channel) || index >= kChoices) return ORV_BAD_ARGUMENT;
  const ConnectedUnits units = Apply(productId, channel, index);
  MergeSettingValue(ModelDisplayName(productId), kKeys[static_cast<std::size_t>(channel)],
                    static_cast<int32_t>(index));
  Announce(outputAudioChange, productId, channel, index);
  ReadBack(units);
  return ORV_SUCCESS;
}

// A temporary routing: it is announced but not stored, so the user's choice stays.
StatusCode ORV_SetUSBOutputAudioDefault(ProductId productId, int32_t channel) {
  if (!IsTakenBySetters(productId, channel)) return ORV_BAD_ARGUMENT;
  const uint32_t defaultIndex = channel < kChannels ? static_cast<uint32_t>(channel) : 0;
  const ConnectedUnits units = Apply(productId, channel, defaultIndex);
  Announce(outputAudioChange, productId, channel, defaultIndex);
  ReadBack(units);
  return ORV_SUCCESS;
}

StatusCode ORV_GetCurrentUSBOutputAudioIndex(ProductId productId, int32_t channel, int32_t *index) {
  if (index == nullptr || !kSelvaOnly.Contains(productId)) return ORV_BAD_ARGUMENT;
  if (channel < 0 || channel >= kChannels) return ORV_BAD_ARGUMENT;
  GetSettingValue(ModelDisplayName(productId), kKeys[static_cast<std::size_t>(channel)], channel,
                  index);
  return ORV_SUCCESS;
}

StatusCode ORV_SetCurrentUSBOutputAudio(ProductId productId, int32_t channel) {
  int32_t recorded = 0;
  if (ORV_GetCurrentUSBOutputAudioIndex(productId, channel, &recorded) != ORV_SUCCESS) {
    return ORV_BAD_ARGUMENT;
  }
  const std::uint16_t *const value = RequestValue(channel, recorded);
  if (value != nullptr) ApplyToEveryUnit(productId, SetMixerInputSetting, *value);
  return ORV_SUCCESS;
}

StatusCode ORV_RegisterOutputAudioChangedCallback(ProductId productId,
                                                  ChannelIndexCallback callback, void *context) {
  return Register(outputAudioChange, kEveryServedModel, productId, callback, context);
}

StatusCode ORV_UnregisterOutputAudioChangedCallback(ProductId productId,
                                                    ChannelIndexCallback /*callback*/) {
  return Unregister(outputAudioChange, kEveryServedModel, productId);
}
