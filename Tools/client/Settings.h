#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "Models.h"

namespace client {

/// Stands for "this setting has no channels".
inline constexpr int32_t kNoChannel = -1;

/// Called for every change that it was registered for.
class Listener {
 public:
  virtual ~Listener() = default;
  /// Runs while notifications are delivered; must not throw.
  virtual void Changed(int32_t channel, int32_t index) noexcept = 0;
};

/// The functions of the library that make up one kind of setting, in one shape for settings with
/// and without channels.
struct SettingFunctions {
  StatusCode (*count)(ProductId, int32_t channel, uint32_t *count);
  StatusCode (*text)(ProductId, int32_t channel, uint32_t index, ORVStringRef *text);
  StatusCode (*get)(ProductId, int32_t channel, int32_t *index);
  StatusCode (*set)(ProductId, int32_t channel, uint32_t index);
  StatusCode (*again)(ProductId, int32_t channel);
  /// Registers for changes on one model; the listener must stay where it is from then on.
  StatusCode (*listen)(ProductId, Listener *listener);
};

/// What only some settings can do; null for those that cannot.
struct SettingExtras {
  /// Whether the model takes a choice from the list. Null: every model that has the setting does.
  bool (*takesChoices)(ProductId) = nullptr;
  /// The default of a channel, where not all channels of all models have the same.
  int32_t (*defaultOf)(ProductId, int32_t channel) = nullptr;
  /// Sends the default for now.
  StatusCode (*setDefault)(ProductId, int32_t channel) = nullptr;
  /// Sends a raw value.
  StatusCode (*setRaw)(ProductId, int32_t channel, int32_t group, uint32_t source) = nullptr;
  /// The text for the user when a choice was set with a warning.
  StatusCode (*warning)(ProductId, int32_t channel, StatusCode status, int32_t language,
                        ORVStringRef *text) = nullptr;
};

/// One kind of setting that mixers have, such as the boost level.
struct SettingKind {
  /// Its name for programs: in commands, JSON and files. It never changes.
  std::string_view name;
  /// What it is called in a sentence.
  std::string_view title;
  /// What one of its choices is called in a sentence.
  std::string_view choice;
  /// What it is, to follow "Show or set".
  std::string_view about;
  /// Whether each channel of the mixer has its own.
  bool hasChannels;
  /// How many choices, from the first on, can be sent again once stored. 0: all.
  int32_t againCount;
  /// The key that it is stored under; the number of the channel follows, where it has channels.
  std::string_view key;
  /// The choice that counts when none is stored.
  int32_t defaultIndex;
  SettingFunctions functions;
  SettingExtras extras = {};
};

/// All kinds of settings, in the order in which they are shown.
std::span<const SettingKind> SettingKinds();

/// One setting of one model (of one channel, where it has channels), as the library answers for it.
struct Setting {
  const SettingKind *kind;
  const Model *model;
  int32_t channel = kNoChannel;

  /// Whether the model has this setting, and this channel of it.
  bool IsOffered() const;

  /// Whether the model takes a choice from the list; if not, the list is only there to be read.
  bool TakesChoices() const;

  /// The texts of all choices, by index.
  std::vector<std::string> Choices() const;

  /// The text of one choice; nothing for a number that is no choice.
  std::optional<std::string> TextOf(int32_t index) const;

  /// The index stored last, or the default; not necessarily that of a choice.
  int32_t Current() const;

  /// The index that counts when none is stored.
  int32_t Default() const;

  /// The key that it is stored under.
  std::string Key() const;

  /// Whether the current index was stored, and is not only the default. For a file that is not
  /// looked into, as it is large or binary: whether the index differs from the default.
  bool IsStored() const;

  /// Whether a choice, once stored, can be sent again.
  bool CanSendAgain(int32_t index) const;
};

/// The settings of a kind that a model has: one, or one for each channel; none when it has none.
std::vector<Setting> SettingsOf(const SettingKind &kind, const Model &model);

/// All settings of a model.
std::vector<Setting> SettingsOf(const Model &model);

/// The served models that have a setting of the kind.
std::vector<const Model *> ModelsWith(const SettingKind &kind);

}  // namespace client
