// A setting without channels, and its operations. Settings.cpp has one row for each setting.
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
  std::span<const char *const> texts;  // one for each choice
  WriteRequest request;
  std::span<const std::uint8_t> codes;  // the mixer's codes for the choices; empty: their indexes
  std::uint32_t choicesSentAgain;       // a stored index beyond these is not sent again
  ChangeKind<IndexCallback> change;
};

/// The kinds for which the observer class of macOS has an operation.
extern Setting boostLevel;
extern Setting midiChannel;
extern Setting midiKeyMode;

// Each checks the result pointer first, then the model, then the index, and does nothing when a
// check fails. Any thread.

StatusCode GetCount(const Setting &setting, ProductId productId, std::uint32_t *count) noexcept;

StatusCode GetText(const Setting &setting, ProductId productId, std::uint32_t index,
                   ORVStringRef *text) noexcept;

/// Sends a choice to every connected unit, stores it and announces it, in this order.
StatusCode Set(Setting &setting, ProductId productId, std::uint32_t index) noexcept;

/// The stored index as it is in the file, in range or not.
StatusCode GetCurrent(const Setting &setting, ProductId productId, std::int32_t *index) noexcept;

/// Sends the stored choice to every connected unit. Neither stores nor announces it.
StatusCode SetCurrent(const Setting &setting, ProductId productId) noexcept;

}  // namespace orv
