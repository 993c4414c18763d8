#pragma once

#include <optional>
#include <string>

#include "Command.h"
#include "client/Delivery.h"

namespace trxctl {

/// Throws Failure when no mixer can be reached; nothing is sent then.
///
/// @param message  what is not done then, such as "nothing was sent".
void RequireReachable(const client::Delivery &reachable, const std::string &message);

/// "Sent to 2 of 2 mixers." and, for each mixer that could not be reached, why.
std::string DeliveryAsText(const client::Delivery &delivery);

/// Sends, stores and announces the choice that the user named, and shows the warning if the mixers
/// draw one.
void SetChoice(const Session &session, const client::Setting &setting, const std::string &given,
               int32_t language);

/// Sends the stored choice once more.
void SendAgain(const Session &session, const client::Setting &setting);

/// Sets the default for now.
void SendDefault(const Session &session, const client::Setting &setting);

/// Sends a raw value.
///
/// @param given  the source code as the user gave it.
void SendRaw(const Session &session, const client::Setting &setting, const std::string &given,
             int32_t group, int32_t language);

/// Why the stored choice cannot be sent again, in words; nothing when it can.
std::optional<std::string> ReasonAgainstAgain(const client::Setting &setting);

}  // namespace trxctl
