// Boost level: the level step of the mixer's USB audio output.
#include <array>

#include <TRX-SELVASetup/TRX-SELVASetup.h>

#include "ChangeKinds.h"
#include "ConnectedUnits.h"
#include "Product.h"
#include "SettingsFile.h"
#include "Text.h"

using namespace orv;

namespace {

constexpr ProductSet kModels = kEveryServedModel;
constexpr const char *kKey = "MaxLevel";
constexpr std::int32_t kDefaultIndex = 3;

constexpr std::array<const char *, 4> BoostLevelText = {"-5 dB", "-10 dB", "-15 dB", "-19 dB"};

// The mixer counts from the quietest level, hosts from the loudest.
constexpr std::array<std::uint8_t, 4> _convDbTable = {3, 2, 1, 0};

std::uint16_t RequestValue(std::uint32_t index) {
  return static_cast<std::uint16_t>(_convDbTable[index] << 8);
}

}  // namespace

StatusCode ORV_GetNumOfBoostLevelIndex(ProductId productId, uint32_t *count) {
  if (count == nullptr || !kModels.Contains(productId)) return ORV_BAD_ARGUMENT;
  *count = BoostLevelText.size();
  return ORV_SUCCESS;
}

StatusCode ORV_GetBoostLevelText(ProductId productId, uint32_t index, uint32_t /*reserved*/,
                                 ORVStringRef *text) {
  if (text == nullptr || !kModels.Contains(productId)) return ORV_BAD_ARGUMENT;
  if (index >= BoostLevelText.size()) return ORV_BAD_ARGUMENT;
  *text = TextOfLiteral(BoostLevelText[index]);
  return ORV_SUCCESS;
}

StatusCode ORV_SetBoostLevelIndex(ProductId productId, uint32_t index) {
  if (!kModels.Contains(productId)) return ORV_BAD_ARGUMENT;
  if (index >= _convDbTable.size()) return ORV_BAD_ARGUMENT;
  ApplyToEveryUnit(productId, SetUSBOutputLevelSetting, RequestValue(index));
  MergeSettingValue(ModelDisplayName(productId), kKey, static_cast<int32_t>(index));
  Announce(kBoostLevelChange, productId, index);
  return ORV_SUCCESS;
}

StatusCode ORV_GetCurrentBoostLevelIndex(ProductId productId, int32_t *index) {
  if (index == nullptr || !kModels.Contains(productId)) return ORV_BAD_ARGUMENT;
  GetSettingValue(ModelDisplayName(productId), kKey, kDefaultIndex, index);
  return ORV_SUCCESS;
}

StatusCode ORV_SetCurrentBoostLevelIndex(ProductId productId) {
  int32_t recorded = 0;
  if (ORV_GetCurrentBoostLevelIndex(productId, &recorded) != ORV_SUCCESS) return ORV_BAD_ARGUMENT;
  const auto index = static_cast<uint32_t>(recorded);
  if (index >= _convDbTable.size()) return ORV_BAD_ARGUMENT;
  ApplyToEveryUnit(productId, SetUSBOutputLevelSetting, RequestValue(index));
  return ORV_SUCCESS;
}
