#pragma once

#include <string>
#include <vector>

namespace trxtest {

/// What this process has done wrong with the double of IOKit, now that no call is under way: a line
/// for each misuse, and one for what should be released by now and is not. Ports, numbers and
/// device interfaces may stay.
std::vector<std::string> TakeWrongUses();

}  // namespace trxtest
