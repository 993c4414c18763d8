// Removes a process's folder after it, even when it is killed.
#pragma once

#include <string>

namespace trxtest {

/// Has a folder removed, with its contents, when this process has ended, however it ends. Throws
/// when the system refuses.
void RemoveAtTheEnd(const std::string &folder);

}  // namespace trxtest
