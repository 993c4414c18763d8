#include "MixerStatus.h"

#include <array>
#include <cstddef>

namespace client {
namespace {

struct Entry {
  ProductId model;
  StatusKinds kinds;
};

constexpr std::array<Entry, 6> kEntries{{
    {ORV_PRODUCT_TRX_ARDEN, {4, false, false, true}},
    {ORV_PRODUCT_TRX_VOLT, {2, false, false, false}},
    {ORV_PRODUCT_TRX_HALDEN, {4, true, false, true}},
    {ORV_PRODUCT_TRX_LUMEN, {4, true, false, true}},
    {ORV_PRODUCT_TRX_MORROW, {4, true, false, true}},
    {ORV_PRODUCT_TRX_SELVA, {4, true, true, true}},
}};

std::optional<SelectorPosition> AskSelector(const Model &model, uint32_t channel) {
  constexpr uint32_t kUntouched = 0xFFFFFFFF;
  uint32_t position = kUntouched;
  const StatusCode status = ORV_GetMixerInputSelectorStatus(model.id, channel, &position);
  if (position == kUntouched) return std::nullopt;
  return SelectorPosition{position, status == ORV_SUCCESS};
}

}  // namespace

const StatusKinds &StatusKindsOf(const Model &model) {
  std::size_t place = 0;
  while (kEntries.at(place).model != model.id) ++place;
  return kEntries.at(place).kinds;
}

MixerStatus AskStatus(const Model &model) {
  const StatusKinds &kinds = StatusKindsOf(model);
  MixerStatus status;
  uint32_t number = 0;
  if (kinds.certifyLevel && ORV_GetMixerCertifyLevel(model.id, &number) == ORV_SUCCESS) {
    status.certifyLevel = number;
  }
  number = 0;
  // The library answers 0 as well when the mixer does not.
  if (kinds.firmware && ORV_GetFirmwareVersionIndex(model.id, &number) == ORV_SUCCESS &&
      number != 0) {
    status.firmware = number;
  }
  for (uint32_t channel = 0; channel < kinds.selectors; ++channel) {
    status.selectors.push_back(AskSelector(model, channel));
  }
  if (kinds.serato && ORV_GetMixerSeratoActiveStatus(model.id, &number) == ORV_SUCCESS) {
    status.serato = number != 0;
  }
  return status;
}

}  // namespace client
