// What a process has in a folder does not outlive it, also when it is killed.
#pragma once

#include <string>

namespace trxtest {

/// Lets a folder be removed, with all that is in it, once this process has ended, however it ends.
/// Throws when the system does not do its part.
void RemoveAtTheEnd(const std::string &folder);

}  // namespace trxtest
