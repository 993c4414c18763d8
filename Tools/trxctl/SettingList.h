#pragma once

#include "Command.h"
#include "Knob.h"

namespace trxctl {

/// Prints one setting (of one channel) with its choices.
void ListChoices(const Session &session, const Knob &knob);

/// Prints all channels of a setting, each with its stored choice.
void ListChannels(const Session &session, const std::vector<Knob> &knobs);

/// The stored choice as a person reads it, also when it is none of the choices.
std::string CurrentAsText(const Knob &knob);

/// What to do about a stored number that is no choice.
std::string StoreOneHint(const Knob &knob);

/// {"index": 1, "text": "-10 dB"}; the text is null for a number that is no choice.
nlohmann::ordered_json ChoiceAsJson(const Knob &knob, int32_t index);

/// The members "setting" and, where it has channels, "channel".
nlohmann::ordered_json NameAsJson(const Knob &knob);

/// The members "model", "setting" and, where it has channels, "channel".
nlohmann::ordered_json HeadingAsJson(const Knob &knob);

}  // namespace trxctl
