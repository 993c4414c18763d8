#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Command.h"
#include "Setting.h"

namespace trxctl {

/// What the command line of a setting asked for.
struct SettingRequest {
  /// The channel, where the setting has channels, and the words of the choice.
  std::vector<std::string> words;
  bool again = false;
  bool to_default = false;
  std::optional<std::string> raw_source;
  int32_t raw_group = -1;
  std::optional<std::string> language;

  /// Takes the channel off the words: the number as the user gave it, if there is one.
  std::optional<std::string> TakeChannel();

  /// The choice in the words; empty when there is none.
  std::string Choice() const;

  /// Throws Failure when the request asks for several things at once.
  void RequireOneAction(bool channel_given) const;
};

/// Adds the words and options that the setting understands to its command.
void AddSettingOptions(CLI::App &app, const Setting &setting, SettingRequest &request);

}  // namespace trxctl
