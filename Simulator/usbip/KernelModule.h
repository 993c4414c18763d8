#pragma once

#include <string>

namespace trxsim {

/// Loads a kernel module with modprobe, without a message on failure. True when it is loaded.
bool LoadKernelModule(const std::string &name);

}  // namespace trxsim
