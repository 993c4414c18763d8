#pragma once

#include <optional>
#include <string>

#include "Command.h"
#include "Knob.h"

namespace trxctl {

/// Sends, stores and announces the choice that the user named, and shows the warning if the mixers
/// draw one.
void SetChoice(const Session &session, const Knob &knob, const std::string &given,
               int32_t language);

/// Sends the stored choice once more.
void SendAgain(const Session &session, const Knob &knob);

/// Sets the default for the time being.
void SendDefault(const Session &session, const Knob &knob);

/// Sends a raw value.
///
/// @param source  the source code as the user gave it.
void SendRaw(const Session &session, const Knob &knob, const std::string &source, int32_t group,
             int32_t language);

/// Why the stored choice cannot be sent again, in words; nothing when it can.
std::optional<std::string> ReasonAgainstAgain(const Knob &knob);

}  // namespace trxctl
