#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Model.h"
#include "Setting.h"

namespace trxctl {

/// One setting of one model (of one channel, where it has channels), as the library answers for it.
class Knob {
 public:
  Knob(const Setting &setting, const Model &model, int32_t channel = kNoChannel)
      : setting_(setting), model_(model), channel_(channel) {}

  const Setting &setting() const { return setting_; }
  const Model &model() const { return model_; }
  int32_t channel() const { return channel_; }

  /// Whether the model has this setting, and this channel of it.
  bool Offered() const;

  /// Whether the model takes a choice from the list.
  bool TakesChoices() const;

  /// What it is called in a sentence: "boost level", "input audio channel 2".
  std::string Title() const;

  /// What the user types to get at it: "trxctl input 2 WORDS", with the model where it has to be
  /// named.
  std::string CommandLine(const std::string &words = "") const;

  /// The texts of all choices, by index.
  std::vector<std::string> Choices() const;

  /// The text of one choice; nothing for a number that is no choice.
  std::optional<std::string> TextOf(int32_t index) const;

  /// The index stored last; not necessarily that of a choice.
  int32_t Current() const;

  /// Sends, stores and announces a choice. ORV_BAD_ARGUMENT when the library refuses it.
  StatusCode Set(uint32_t index) const;

  /// Whether a choice, once stored, can be sent again.
  bool CanSendAgain(int32_t index) const;

  /// Sends the stored choice again. False when the library refuses it.
  bool SetAgain() const;

 private:
  const Setting &setting_;
  const Model &model_;
  int32_t channel_;
};

/// A setting of a model: one knob, or one a channel; none when the model does not have it.
std::vector<Knob> KnobsOf(const Setting &setting, const Model &model);

}  // namespace trxctl
