#pragma once

#include <string>

namespace trxsim {

/// Has modprobe load a module of the kernel, without a word when it cannot. True when modprobe says
/// that the module is there.
bool LoadKernelModule(const std::string &name);

}  // namespace trxsim
