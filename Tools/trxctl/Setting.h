#pragma once

#include <span>
#include <string_view>

#include <TRX-SELVASetup/TRX-SELVASetup.h>

namespace trxctl {

/// Stands for "this setting has no channels".
inline constexpr int32_t kNoChannel = -1;

/// Told of every change that a Listener was registered for.
class Listener {
 public:
  virtual ~Listener() = default;
  /// Called while notifications are delivered; must not throw.
  virtual void Changed(int32_t channel, int32_t index) noexcept = 0;
};

/// The functions of the library that make up one setting, in one shape for settings with and
/// without channels.
struct SettingFunctions {
  StatusCode (*count)(ProductId, int32_t channel, uint32_t *count);
  StatusCode (*text)(ProductId, int32_t channel, uint32_t index, ORVStringRef *text);
  StatusCode (*get)(ProductId, int32_t channel, int32_t *index);
  StatusCode (*set)(ProductId, int32_t channel, uint32_t index);
  StatusCode (*again)(ProductId, int32_t channel);
  /// Registers for its changes on one model; the listener must stay where it is from then on.
  StatusCode (*listen)(ProductId, Listener *listener);
};

/// What only some settings can do; null for those that cannot.
struct SettingExtras {
  /// Whether the model takes a choice from the list. Null: every model that has the setting does.
  bool (*takes_choices)(ProductId) = nullptr;
  /// Sends a channel's default for the time being.
  StatusCode (*set_default)(ProductId, int32_t channel) = nullptr;
  /// Sends a raw value.
  StatusCode (*set_raw)(ProductId, int32_t channel, int32_t group, uint32_t source) = nullptr;
  /// The text for the user when a choice was set with a warning.
  StatusCode (*warning)(ProductId, int32_t channel, StatusCode status, int32_t language,
                        ORVStringRef *text) = nullptr;
};

/// One setting of the mixers: its words and its functions.
struct Setting {
  /// The command that lists and sets it; also its name in JSON.
  std::string_view name;
  /// What it is called in a sentence.
  std::string_view title;
  /// What one of its choices is called in a sentence.
  std::string_view choice;
  /// What it is, to follow "Show or set".
  std::string_view about;
  /// Examples for the help, one a line.
  std::string_view examples;
  /// Whether each channel of the mixer has its own.
  bool has_channels;
  /// The number of the first choice, as people count its choices.
  uint32_t first_number;
  /// How many choices, from the first on, can be sent again once stored. 0: all.
  int32_t again_count;
  SettingFunctions functions;
  SettingExtras extras;
};

/// All settings, in the order in which they are shown.
std::span<const Setting> Settings();

}  // namespace trxctl
