#pragma once

#include <TRX-SELVASetup/TRX-SELVASetup.h>

namespace client {

/// How many choices the list of a recording channel holds, for every model that has such lists. The
/// library itself counts those of TRX-SELVA only.
StatusCode CountInputChoices(ProductId model, int32_t channel, uint32_t *count);

/// What counts when nothing is stored for a recording channel.
int32_t DefaultInputChoice(ProductId model, int32_t channel);

/// Whether the model takes a choice from its list; if not, the list is only there to be read.
bool TakesInputChoices(ProductId model);

/// How many recording channels of the model take a raw routing value.
int32_t CountRawInputChannels(ProductId model);

/// The number of raw source codes that a recording channel takes, counted from 0.
uint32_t CountRawInputSources(ProductId model, int32_t channel);

}  // namespace client
