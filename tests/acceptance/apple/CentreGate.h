// Blocks posts of this process, so that a case can check what a setter did before.
#pragma once

#include <chrono>

namespace trxtest {

/// While the gate is shut, posting a notification waits, at most for `patience`.
void ShutCentreGate(std::chrono::seconds patience);
void OpenCentreGate();

}  // namespace trxtest
