#include "InputLists.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace client {
namespace {

/// The list of one channel.
struct InputList {
  uint32_t choices;
  int32_t defaultIndex;
};

/// The lists of one model.
struct InputLists {
  ProductId model;
  std::size_t channels;
  std::array<InputList, 5> lists;
};

// The library hands out texts beyond the end of a list (and, for TRX-HALDEN, the first choice a
// second time); these are the choices that the mixers have.
constexpr std::array<InputLists, 6> kInputLists{{
    {ORV_PRODUCT_TRX_ARDEN, 4, {{{8, 3}, {8, 3}, {8, 3}, {8, 3}}}},
    {ORV_PRODUCT_TRX_VOLT, 3, {{{2, 1}, {2, 1}, {6, 5}}}},
    {ORV_PRODUCT_TRX_HALDEN, 5, {{{8, 0}, {8, 0}, {8, 0}, {8, 0}, {9, 0}}}},
    {ORV_PRODUCT_TRX_LUMEN, 3, {{{8, 0}, {8, 0}, {7, 0}}}},
    {ORV_PRODUCT_TRX_MORROW, 3, {{{8, 0}, {8, 0}, {7, 0}}}},
    {ORV_PRODUCT_TRX_SELVA, 3, {{{8, 0}, {8, 0}, {7, 0}}}},
}};

/// The list of a channel; null when there is none.
const InputList *ListOf(ProductId model, int32_t channel) {
  const auto lists =
      std::find_if(kInputLists.begin(), kInputLists.end(),
                   [model](const InputLists &candidate) { return candidate.model == model; });
  const auto place = static_cast<std::size_t>(channel);
  if (lists == kInputLists.end() || channel < 0 || place >= lists->channels) return nullptr;
  return &lists->lists.at(place);
}

}  // namespace

StatusCode CountInputChoices(ProductId model, int32_t channel, uint32_t *count) {
  const InputList *list = ListOf(model, channel);
  if (list == nullptr) return ORV_BAD_ARGUMENT;
  *count = list->choices;
  return ORV_SUCCESS;
}

int32_t DefaultInputChoice(ProductId model, int32_t channel) {
  const InputList *list = ListOf(model, channel);
  return list == nullptr ? 0 : list->defaultIndex;
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

}  // namespace client
