#include "Setting.h"

#include "ConnectedUnits.h"
#include "SettingsFile.h"
#include "Text.h"

namespace orv {
namespace {

// The mixer's code for the choice, in the high byte.
std::uint16_t RequestValue(const Setting &setting, std::uint32_t index) {
  const std::uint32_t code = setting.codes.empty() ? index : setting.codes[index];
  return static_cast<std::uint16_t>(code << 8);
}

}  // namespace

StatusCode GetCount(const Setting &setting, ProductId productId, std::uint32_t *count) noexcept {
  if (count == nullptr || !setting.models.Contains(productId)) return ORV_BAD_ARGUMENT;
  *count = static_cast<std::uint32_t>(setting.texts.size());
  return ORV_SUCCESS;
}

StatusCode GetText(const Setting &setting, ProductId productId, std::uint32_t index,
                   ORVStringRef *text) noexcept {
  if (text == nullptr || !setting.models.Contains(productId)) return ORV_BAD_ARGUMENT;
  if (index >= setting.texts.size()) return ORV_BAD_ARGUMENT;
  *text = TextOfLiteral(setting.texts[index]);
  return ORV_SUCCESS;
}

StatusCode Set(Setting &setting, ProductId productId, std::uint32_t index) noexcept {
  if (!setting.models.Contains(productId)) return ORV_BAD_ARGUMENT;
  if (index >= setting.texts.size()) return ORV_BAD_ARGUMENT;
  ApplyToEveryUnit(productId, setting.request, RequestValue(setting, index));
  MergeSettingValue(ModelDisplayName(productId), setting.key, static_cast<std::int32_t>(index));
  Announce(setting.change, productId, index);
  return ORV_SUCCESS;
}

StatusCode GetCurrent(const Setting &setting, ProductId productId, std::int32_t *index) noexcept {
  if (index == nullptr || !setting.models.Contains(productId)) return ORV_BAD_ARGUMENT;
  GetSettingValue(ModelDisplayName(productId), setting.key, setting.defaultIndex, index);
  return ORV_SUCCESS;
}

StatusCode SetCurrent(const Setting &setting, ProductId productId) noexcept {
  std::int32_t recorded = 0;
  if (GetCurrent(setting, productId, &recorded) != ORV_SUCCESS) return ORV_BAD_ARGUMENT;
  const auto index = static_cast<std::uint32_t>(recorded);
  if (index >= setting.choicesSentAgain) return ORV_BAD_ARGUMENT;
  ApplyToEveryUnit(productId, setting.request, RequestValue(setting, index));
  return ORV_SUCCESS;
}

}  // namespace orv
