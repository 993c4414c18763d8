#pragma once

#include <string>
#include <vector>

namespace trxtest {

/// What this process did wrong with the double of IOKit; no call may be running. One line for each
/// misuse, and one for objects that should have been released. Ports, numbers and device interfaces
/// may stay.
std::vector<std::string> TakeWrongUses();

}  // namespace trxtest
