#pragma once

#include <string>

#include "ExitCode.h"
#include "client/ProfileFault.h"

namespace trxctl {

/// What is the matter with a profile, in a sentence.
///
/// @param profile  what the profile is called in it, such as: the profile "gig".
std::string SentenceFor(const client::ProfileFault &fault, const std::string &profile);

/// The failure that a fault of a profile ends a command with.
Failure FailureFor(const client::ProfileFault &fault, const std::string &profile);

}  // namespace trxctl
