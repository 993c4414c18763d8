#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Command.h"
#include "client/Delivery.h"

namespace trxctl {

/// Throws Failure when no mixer can be reached; nothing is sent then.
///
/// @param message  what is not done then, such as "nothing was sent".
void RequireReachable(const client::Delivery &reachable, const std::string &message);

/// "Sent to 2 of 2 connected mixers.".
std::string DeliveryAsText(const client::Delivery &delivery);

/// What is wrong when not every connected mixer took a value; nothing when all did.
///
/// @param elsewhere  what was done anyway, to follow the mixers: "; it is stored".
std::optional<Failure> DeliveryFailure(const client::Delivery &delivery,
                                       const std::string &elsewhere = "");

/// A warning for each connected mixer that is of another model.
std::vector<std::string> OtherModelWarnings(const client::Model &model,
                                            const client::Delivery &delivery);

/// How a value is sent.
struct SendOptions {
  /// The number of the language of warnings.
  int32_t language;
  /// Only tell what would be sent.
  bool isDryRun = false;
};

/// Sends, stores and announces the choice that the user named, and shows the warning if the mixers
/// draw one.
ExitCode SetChoice(const Session &session, const client::Setting &setting, const std::string &given,
                   const SendOptions &options);

/// Sends the stored choice once more.
ExitCode SendAgain(const Session &session, const client::Setting &setting,
                   const SendOptions &options);

/// Sets the default for now.
ExitCode SendDefault(const Session &session, const client::Setting &setting,
                     const SendOptions &options);

/// Sends a raw value.
///
/// @param given  the source code as the user gave it.
ExitCode SendRaw(const Session &session, const client::Setting &setting, const std::string &given,
                 int32_t group, const SendOptions &options);

/// Why the stored choice cannot be sent again, in words; nothing when it can.
std::optional<std::string> ReasonAgainstAgain(const client::Setting &setting);

/// Tells what keeps a setting from being stored: the system's own reason.
Failure NotStored(const client::Setting &setting);

}  // namespace trxctl
