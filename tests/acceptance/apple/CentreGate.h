// Holds posts of this process up, so that a case can look at what a setter did before.
#pragma once

#include <chrono>

namespace trxtest {

/// While the gate is shut, whoever posts a notification waits in front of it, at most `patience`.
void ShutCentreGate(std::chrono::seconds patience);
void OpenCentreGate();

}  // namespace trxtest
