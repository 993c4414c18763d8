// A setting without channels, and what every one of them can do. Settings.cpp describes them, a row
// each.
#pragma once

#include <cstdint>
#include <span>

#include <TRX-SELVASetup/TRX-SELVASetup.h>

#include "ChangeKind.h"
#include "Product.h"
#include "VendorRequest.h"

namespace orv {

struct Setting {
  ProductSet models;
  const char *key;  // in the settings file of each model
  std::int32_t defaultIndex;
  std::span<const char *const> texts;  // one a choice
  WriteRequest request;
  std::span<const std::uint8_t> codes;  // what the mixer calls the choices; empty: their indexes
  std::uint32_t choicesSentAgain;       // a stored index beyond these is not sent again
  ChangeKind<IndexCallback> change;
};

/// Those whose changes the observer class of macOS has an operation for.
extern Setting boostLevel;
extern Setting midiChannel;
extern Setting midiKeyMode;

// Each checks the result pointer first, then the model, then the index, and does nothing when one
// of them is refused. Any thread.

StatusCode GetCount(const Setting &setting, ProductId productId, std::uint32_t *count) noexcept;

StatusCode GetText(const Setting &setting, ProductId productId, std::uint32_t index,
                   ORVStringRef *text) noexcept;

/// Sends a choice to every connected unit, records it and announces it, in this order.
StatusCode Set(Setting &setting, ProductId productId, std::uint32_t index) noexcept;

/// The recorded index as it stands in the file, in range or not.
StatusCode GetCurrent(const Setting &setting, ProductId productId, std::int32_t *index) noexcept;

/// Sends the recorded choice to every connected unit, and neither records nor announces it.
StatusCode SetCurrent(const Setting &setting, ProductId productId) noexcept;

}  // namespace orv
