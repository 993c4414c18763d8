#include "InputLists.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace trxctl {
namespace {

/// The lists of one model: how many choices each of its channels has.
struct InputLists {
  ProductId model;
  std::size_t channels;
  std::array<uint32_t, 5> choices;
};

// The library hands out texts beyond the end of a list (and, for TRX-HALDEN, the first choice a
// second time); these are the choices that the mixers have.
constexpr std::array<InputLists, 6> kInputLists{{
    {ORV_PRODUCT_TRX_ARDEN, 4, {8, 8, 8, 8}},
    {ORV_PRODUCT_TRX_VOLT, 3, {2, 2, 6}},
    {ORV_PRODUCT_TRX_HALDEN, 5, {8, 8, 8, 8, 9}},
    {ORV_PRODUCT_TRX_LUMEN, 3, {8, 8, 7}},
    {ORV_PRODUCT_TRX_MORROW, 3, {8, 8, 7}},
    {ORV_PRODUCT_TRX_SELVA, 3, {8, 8, 7}},
}};

}  // namespace

StatusCode CountInputChoices(ProductId model, int32_t channel, uint32_t *count) {
  const auto lists =
      std::find_if(kInputLists.begin(), kInputLists.end(),
                   [model](const InputLists &candidate) { return candidate.model == model; });
  if (lists == kInputLists.end() || channel < 0 ||
      static_cast<std::size_t>(channel) >= lists->channels) {
    return ORV_BAD_ARGUMENT;
  }
  *count = lists->choices.at(static_cast<std::size_t>(channel));
  return ORV_SUCCESS;
}

bool TakesInputChoices(ProductId model) {
  int32_t count = 0;
  return ORV_GetNumOfInputAudioIndex(model, 0, &count) == ORV_SUCCESS;
}

int32_t CountRawInputChannels(ProductId model) {
  // The library has a first text for exactly the channels that take a raw value.
  int32_t channels = 0;
  ORVStringRef text = nullptr;
  while (ORV_GetUSBInputAudioText(model, channels, 0, 0, &text) == ORV_SUCCESS) ++channels;
  return channels;
}

uint32_t CountRawInputSources(ProductId model, int32_t channel) {
  return model == ORV_PRODUCT_TRX_VOLT && channel < 2 ? 4 : 16;
}

}  // namespace trxctl
