#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "client/Delivery.h"
#include "client/Settings.h"

namespace trxctl {

/// A text from outside with its control characters replaced, so that it cannot steer the terminal.
std::string Printable(std::string_view text);

/// A printable text in double quotes, shortened when it is long.
std::string Quoted(std::string_view text);

/// "a", "a, b", "a, b, c".
std::string Joined(const std::vector<std::string> &parts, std::string_view separator = ", ");

/// "1 mixer", "2 mixers".
std::string Counted(std::size_t number, std::string_view noun);

/// The text in lower case (ASCII letters only).
std::string Lower(std::string_view text);

/// The names of some models.
std::vector<std::string> NamesOf(const std::vector<const client::Model *> &models);

/// "TRX-SELVA (bus 1, address 5)".
std::string Describe(const client::Mixer &mixer);

/// What to do about a mixer that may not be opened, for the reason that the system gave.
std::string AccessHint(int refusal);

/// What a setting is called in a sentence: "boost level", "input audio channel 2".
std::string TitleOf(const client::Setting &setting);

/// What the user types to get at a setting: "trxctl input 2 WORDS", with the model where it has to
/// be named.
std::string CommandLineFor(const client::Setting &setting, const std::string &words = "");

/// "TRX-SELVA (bus 1, address 5), serial 0001".
std::string DescribeWithSerial(const client::Mixer &mixer);

/// What became of a value at a mixer that did not take it: "refused it".
std::string OutcomeAsText(const client::MixerResult &result);

/// What to do about a mixer that did not take a value.
std::string OutcomeHint(const client::MixerResult &result);

/// The text of a choice; its number when it is no choice.
std::string ChoiceAsText(const client::Setting &setting, int32_t index);

/// The choice in use as a person reads it, marked when it is only the default or no choice.
std::string CurrentAsText(const client::Setting &setting);

/// What is said of a settings file that cannot be read; nothing of one that can.
std::optional<std::string> FileWarning(const client::Model &model);

/// What to do about a stored number that is no choice.
std::string StoreOneHint(const client::Setting &setting);

}  // namespace trxctl
