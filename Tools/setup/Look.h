#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "client/Delivery.h"
#include "client/Diagnosis.h"
#include "client/MixerStatus.h"

namespace setup {

/// A setting and the number stored for it, which need not be that of a choice.
struct StoredChoice {
  client::Setting setting;
  int32_t index;
};

/// A recording channel whose control tone does not reach the computer.
struct Warning {
  int32_t channel;
  /// What to do at the mixer; from the library.
  std::string text;

  bool operator==(const Warning &) const = default;
};

/// What mixers and files are like at one moment. Looking may take seconds.
struct Look {
  const client::Model *model = nullptr;
  bool isConnected = false;
  /// Those that the system lists, and whether they may be opened.
  std::vector<client::MixerResult> mixers = {};
  std::vector<StoredChoice> stored = {};
  /// Whether the user wants the settings sent to a mixer that is plugged in.
  bool isAutoApplyOn = true;
  /// What was checked on the way to the mixers; empty when nothing keeps them from being asked.
  std::vector<client::Check> checks = {};
  /// Whether the mixers were asked; what follows is empty before.
  bool isAsked = false;
  /// The mixers that did not answer.
  std::vector<client::Mixer> silent = {};
  std::optional<uint32_t> firmware = {};
  std::vector<std::optional<client::SelectorPosition>> selectors = {};
  std::vector<Warning> warnings = {};

  /// Whether a mixer can take a setting.
  bool CanSend() const;

  /// The first check that found a problem; null for none.
  const client::Check *Problem() const;
};

/// The settings of a model that it takes from a list, in the order in which they are shown.
std::vector<client::Setting> SettingsShown(const client::Model &model);

/// The number stored for each setting of a model.
std::vector<StoredChoice> LookAtStored(const client::Model &model);

/// Looks at everything that is known without asking a mixer.
///
/// @param usual  the model to show when no mixer tells another one.
Look LookAround(const client::Model &usual);

/// Asks the mixers, too.
///
/// @param language  the number of the language of warnings.
Look LookAndAsk(const client::Model &usual, int32_t language);

/// Whether an input selector at this position lets the computer's control tone pass.
bool IsUsbPosition(uint32_t position);

/// Whether the choice of a recording channel passes the input selector.
bool IsControlTone(const client::Setting &setting, int32_t index);

}  // namespace setup
