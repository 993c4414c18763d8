#pragma once

#include <optional>
#include <vector>

#include "Delivery.h"

namespace client {

/// What the mixers of a model report, as far as it can be read.
struct StatusKinds {
  /// The channels whose selector position is reported; the library accepts one more for most
  /// models, for which the mixers report none.
  uint32_t selectors;
  bool certifyLevel;
  bool firmware;
  bool serato;
};

/// What can be asked of the mixers of a served model.
const StatusKinds &StatusKindsOf(const Model &model);

/// What a position of an input selector is: a number, and whether it is one that mixers have.
struct SelectorPosition {
  uint32_t position;
  bool isValid;
};

/// What mixers reported; nothing where no answer came.
struct MixerStatus {
  std::optional<uint32_t> certifyLevel = {};
  std::optional<uint32_t> firmware = {};
  std::vector<std::optional<SelectorPosition>> selectors = {};
  std::optional<bool> serato = {};
  /// What became of the questions at each mixer.
  Delivery answers = {};
};

/// Asks the connected mixers. The firmware is that of the first, the rest that of the last.
MixerStatus AskStatus(const Model &model);

}  // namespace client
